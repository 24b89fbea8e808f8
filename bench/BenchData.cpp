#include "BenchData.h"

#include <cstdint>
#include <fstream>
#include <string_view>
#include <vector>

#include "base/TreeWalk.h"
#include "model/OobItem.h"

namespace {

constexpr int kUnitTypes = 400;
constexpr int kWeaponsPerType = 3;
constexpr const char* kEnd = "\r\n";

// A small linear congruential generator: the same inputs on every machine and every run.
class CRandom {
public:
    std::uint32_t Next() {
        m_state = m_state * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<std::uint32_t>(m_state >> 33);
    }
    int Below(int n) { return static_cast<int>(Next() % static_cast<std::uint32_t>(n)); }

private:
    std::uint64_t m_state = 20261123;
};

const char* const kUnitWords[] = {"Fusilier", "Grenadier", "Rifle",  "Line",    "Militia",
                                  "Dragoon",  "Lancer",    "Hussar", "Battery", "Howitzer"};
const char* const kPlaces[] = {"Arnholt",  "Brevik",    "Corlan", "Dunmere", "Esk",
                               "Falloway", "Greystead", "Harrow", "Istvane", "Jorundel"};

std::string Ordinal(int n) {
    const char* suffix = (n % 100 >= 11 && n % 100 <= 13) ? "th"
                         : n % 10 == 1                    ? "st"
                         : n % 10 == 2                    ? "nd"
                         : n % 10 == 3                    ? "rd"
                                                          : "th";
    return std::to_string(n) + suffix;
}

void Line(std::string& out, int depth, std::string_view text) {
    out.append(static_cast<std::size_t>(depth), '\t');
    out.append(text);
    out.append(kEnd);
}

class COobWriter {
public:
    explicit COobWriter(std::size_t entries) : m_nLimit(entries) {}

    std::string Build() {
        Line(m_out, 0, "3");
        for (int army = 1; m_nWritten < m_nLimit; ++army) {
            Container(0, "A ", Ordinal(army) + " Army of " + kPlaces[army % 10]);
            Leader(1, 6);
            for (int corps = 1; corps <= 6 && m_nWritten < m_nLimit; ++corps) {
                Container(1, "C ", Ordinal(corps) + " Corps");
                Leader(2, 5);
                for (int division = 1; division <= 4 && m_nWritten < m_nLimit; ++division) {
                    Container(2, "D ", Ordinal(division) + " Division");
                    Leader(3, 4);
                    for (int brigade = 1; brigade <= 4 && m_nWritten < m_nLimit; ++brigade) {
                        Brigade(3, brigade);
                    }
                    Line(m_out, 3, "End");
                }
                Line(m_out, 2, "End");
            }
            Line(m_out, 1, "End");
        }
        Line(m_out, 0, "DEP 6 0 Main Depot");
        Line(m_out, 0, "GB 4 3 Cannon 2 River Gunboat");
        return std::move(m_out);
    }

private:
    void Container(int depth, const char* keyword, const std::string& name) {
        Line(m_out, depth, keyword + name);
        Line(m_out, depth + 1, "Begin");
        ++m_nWritten;
    }

    void Leader(int depth, int leadership) {
        Line(m_out, depth,
             "L " + std::to_string(m_random.Below(7)) + " " + std::to_string(leadership) + " 0 " +
                 "Gen. " + kPlaces[m_random.Below(10)] + " " + std::to_string(m_nWritten));
        ++m_nWritten;
    }

    void Brigade(int depth, int number) {
        Container(depth, "B ", Ordinal(number) + " Brigade");
        Leader(depth + 1, 3);
        for (int unit = 0; unit < 8; ++unit) {
            const int type = m_random.Below(kUnitTypes);
            const int quality = m_random.Below(9) - 1;
            Line(m_out, depth + 1,
                 "U " + std::to_string(10 + m_random.Below(30)) + " " + std::to_string(quality) +
                     " T" + std::to_string(type) + " W" +
                     std::to_string(m_random.Below(kWeaponsPerType)) + " " +
                     std::to_string(m_random.Below(40)) + " 0 " +
                     std::to_string(m_random.Below(12)) + " " + Ordinal(unit + 1) + " " +
                     kUnitWords[type % 10] + " Regiment");
            ++m_nWritten;
        }
        Line(m_out, depth + 1, "S 6 1 Supply Column");
        ++m_nWritten;
        Line(m_out, depth + 1, "End");
    }

    std::size_t m_nLimit;
    std::size_t m_nWritten = 0;
    CRandom m_random;
    std::string m_out;
};

}  // namespace

std::string MakeBenchTarget() {
    std::string out;
    Line(out, 1, "Bench Campaign|");
    Line(out, 1, "0|1|0|1|0|1|");
    Line(out, 1, "64|48|48|48|32|32|32|32|32|32|");
    Line(out, 1, "3|0|1|0|1|0.5|-9|9|2|");
    Line(out, 1, "Valdoria|Ostmark|");
    Line(out, 0, "</A>");
    for (const char* kind :
         {"7|9|A |Army|", "6|8|C |Corps|", "6|7|D |Division|", "6|6|B |Brigade|", "4|1|L |Leader|",
          "0|1|U |Unit|", "5|1|S |Supply|", "8|2|DEP |Depot|", "9|1|GB |Gunboat|"}) {
        Line(out, 1, kind);
    }
    Line(out, 0, "</B>");
    for (const char* base :
         {"1|3|0.05|2|100|40|Infantry|", "2|3|0.06|3|50|30|Cavalry|", "3|3|0.08|5|20|12|Artillery|",
          "4|3|0.1|50|1|1|Leader|", "5|0|0|1|10|20|Supply|", "6|0|0|10|1|1|Structure|"}) {
        Line(out, 1, base);
    }
    Line(out, 0, "</C>");
    for (int type = 0; type < kUnitTypes; ++type) {
        Line(out, 1,
             std::to_string(1 + type % 3) + "|T" + std::to_string(type) + "|0." +
                 std::to_string(type % 10) + "|Unit type " + std::to_string(type) + "|");
        for (int weapon = 0; weapon < kWeaponsPerType; ++weapon) {
            Line(out, 2,
                 "W" + std::to_string(weapon) + "|0.1|Weapon " + std::to_string(weapon) + "|");
        }
        Line(out, 2, "</W>");
    }
    for (int command = 0; command <= 6; ++command) {
        Line(out, 1,
             "4|" + std::to_string(command) + "|0.1|Command " + std::to_string(command) + "|");
        Line(out, 2, "</W>");
    }
    for (const char* type : {"6|A |0|Army|", "6|C |0|Corps|", "6|D |0.1|Division|",
                             "6|B |0.2|Brigade|", "5|S |0|Supply|", "5|DEP |0|Depot|"}) {
        Line(out, 1, type);
        Line(out, 2, "</W>");
    }
    Line(out, 1, "3|GB |0.5|Gunboat|");
    Line(out, 2, "Cannon|0.2|Cannon|");
    Line(out, 2, "</W>");
    Line(out, 0, "</D>");
    Line(out, 0, "</E>");
    Line(out, 1, "bench.tpl|");
    out += "</F>";
    return out;
}

std::string MakeBenchOob(std::size_t entries) {
    return COobWriter(entries).Build();
}

std::string MakeBenchGameFile(const CTreeStore& tree) {
    std::string out;
    for (int i = 1; i <= 9; ++i) {
        Line(out, 0, "header line " + std::to_string(i));
    }
    std::vector<int> counters;
    std::vector<std::string> leaders;
    std::string key;
    for (CTreeWalk walk(tree, nullptr); !walk.Done(); walk.Step()) {
        counters.resize(static_cast<std::size_t>(walk.Depth()) + 1, 0);
        ++counters.back();
        key.clear();
        for (int counter : counters) {
            key += std::to_string(counter) + ".";
        }
        const std::uint8_t type = ItemOf(tree, walk.Current())->m_nType;
        if (type == 0 || type == 5) {
            Line(out, 0, "1 " + key + " 3 4 " + std::to_string(5 + counters.back() % 20));
        } else if (type == 4) {
            leaders.push_back(key);
        }
    }
    Line(out, 0, "2 0 0 0 0 0 0 0 0 0 " + std::to_string(leaders.size()));
    for (const std::string& leader : leaders) {
        Line(out, 0, leader);
    }
    Line(out, 0, "0");
    return out;
}

void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}
