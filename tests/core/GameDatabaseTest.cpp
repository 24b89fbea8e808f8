#include "gamedata/GameDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <sstream>
#include <string>

#include "TempFolder.h"
#include "gamedata/GameRecords.h"
#include "model/Result.h"
#include "model/TextLines.h"

namespace {

// A small target file exactly as the writer lays it out.
const std::string kGolden =
    "\tNorthern Marches|\r\n"
    "\t0|2|1|3|2|0|\r\n"
    "\t48|64|32|40|16|16|16|18|20|16|\r\n"
    "\t7|2|1|0|2|0.5|-3|9|2|\r\n"
    "\tNorland|Sudmark|\r\n"
    "</A>\r\n"
    "\t7|9|Army |Army|\r\n"
    "\t0|1|U |Unit|\r\n"
    "\t4|2|L |Leader|\r\n"
    "</B>\r\n"
    "\t1|4|0.25|2|100|40|Line foot|\r\n"
    "\t2|3|0.5|3.5|50|20|Horse|\r\n"
    "</C>\r\n"
    "\t1|Fusilier|0.1|Fusilier type|\r\n"
    "\t\tMusket|0.05|Smooth musket|\r\n"
    "\t\tRifle|0.2|Rifled musket|\r\n"
    "\t\t</W>\r\n"
    "\t4|Command|0|Command|\r\n"
    "\t\t</W>\r\n"
    "</D>\r\n"
    "\tnorth.oob|North|\r\n"
    "</E>\r\n"
    "\ttemplates.tpl|\r\n"
    "\t6|3|1|1500|Brigade|\r\n"
    "\t0|1|0|250.5|Battery|\r\n"
    "\t4|2|1|80|Colonel|\r\n"
    "</F>";

// What the reader must make of kGolden, one line per header line and record.
const char* const kGoldenDump =
    "title Northern Marches\n"
    "geometry 0 2 1 3 2 0\n"
    "sizes 48 64 32 40 16 16 16 18 20 16\n"
    "switches 7 2 1 0 2 0.5 -3 9\n"
    "countries 2 [Norland] [Sudmark]\n"
    "kind 7 9 [Army ] [Army]\n"
    "kind 0 1 [U ] [Unit]\n"
    "kind 4 2 [L ] [Leader]\n"
    "base 1 4 0.25 2 100 40 [Line foot]\n"
    "base 2 3 0.5 3.5 50 20 [Horse]\n"
    "type 1 [Fusilier] 0.1 [Fusilier type]\n"
    " weapon [Musket] 0.05 [Smooth musket]\n"
    " weapon [Rifle] 0.2 [Rifled musket]\n"
    "type 4 [Command] 0 [Command]\n"
    "oob [north.oob] [North]\n"
    "template file [templates.tpl]\n"
    "template 6 3 1 1500 [Brigade] #0\n"
    "template 0 1 0 250.5 [Battery] #1\n"
    "template 4 2 1 80 [Colonel] #2\n";

std::string Num(double value) {
    return Format("%.15g", value);
}

template <typename Record, typename Describe>
void DumpList(std::string& out, const CDataList& list, Describe describe) {
    for (const CDataListNode* n = list.Head(); n; n = n->m_pNext) {
        out += describe(static_cast<const Record&>(*n->m_pPayload)) + "\n";
    }
}

// Every field the reader fills, written independently of the writer under test.
std::string Dump(const CGameDatabase& db) {
    std::string out = "title " + db.m_strName + "\ngeometry";
    for (auto v : db.m_nIconGeometry) {
        out += " " + std::to_string(v);
    }
    out += "\nsizes";
    for (auto v : db.m_nCellSizes) {
        out += " " + std::to_string(v);
    }
    out += Format("\nswitches %d %d %d %d %d %s %d %d\ncountries %d", db.m_nOobHeader,
                  db.m_nDefaultThird, db.m_nLeaderExtras, db.m_nDefaultReserved,
                  db.m_nFormatVariant, Num(db.m_dFanaticBonus).c_str(), db.m_nMinQuality,
                  db.m_nMaxQuality, db.m_nCountryCount);
    for (std::size_t i = 0; i < db.m_nCountryCount; ++i) {
        out += " [" + db.m_strCountries[i] + "]";
    }
    out += "\n";
    DumpList<CKindRecord>(out, db.m_Kinds, [](const CKindRecord& r) {
        return Format("kind %d %d [%s] [%s]", r.TypeCode(), r.m_nLevel, r.m_strKeyword.c_str(),
                      r.m_strName.c_str());
    });
    DumpList<CBaseTypeRecord>(out, db.m_BaseTypes, [](const CBaseTypeRecord& r) {
        return Format("base %d %d %s %s %d %d [%s]", r.ClassCode(), r.m_nBaseQuality,
                      Num(r.m_dQualityFactor).c_str(), Num(r.m_dBaseCost).c_str(), r.m_nMenPerPoint,
                      r.m_nMaxStrength, r.m_strName.c_str());
    });
    DumpList<CTypeRecord>(out, db.m_Types, [](const CTypeRecord& r) {
        std::string text = Format("type %d [%s] %s [%s]", r.ClassCode(), r.m_strType.c_str(),
                                  Num(r.m_dCostModifier).c_str(), r.m_strName.c_str());
        for (const CDataListNode* n = r.m_Weapons.Head(); n; n = n->m_pNext) {
            const auto& w = static_cast<const CWeaponRecord&>(*n->m_pPayload);
            text += Format("\n weapon [%s] %s [%s]", w.m_strWeapon.c_str(),
                           Num(w.m_dCostModifier).c_str(), w.m_strName.c_str());
        }
        return text;
    });
    DumpList<CAttachedOobRecord>(out, db.m_AttachedOobs, [](const CAttachedOobRecord& r) {
        return "oob [" + r.m_strFile + "] [" + r.m_strName + "]";
    });
    out += "template file [" + db.m_strTemplateFile + "]\n";
    DumpList<CTemplateRecord>(out, db.m_Templates, [](const CTemplateRecord& r) {
        return Format("template %d %d %d %s [%s] #%d", r.TypeCode(), r.m_nLevel, r.m_nCountry,
                      Num(r.m_dCost).c_str(), r.m_strName.c_str(), r.m_nOrdinal);
    });
    return out;
}

std::unique_ptr<CGameDatabase> Parse(const std::string& text) {
    auto db = std::make_unique<CGameDatabase>();
    std::istringstream in(text);
    db->ReadFrom(in);
    return db;
}

std::string Replace(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

template <typename Record>
const Record& At(CDataList& list, int index) {
    return static_cast<const Record&>(*list.SeekIndex(index)->m_pPayload);
}

TEST(GameDatabase, ReadsEveryFieldAndWritesTheSameBytes) {
    auto db = Parse(kGolden);
    EXPECT_EQ(Dump(*db), kGoldenDump);
    EXPECT_EQ(db->ToText(), kGolden);
    EXPECT_EQ(Dump(*Parse(db->ToText())), kGoldenDump);
}

TEST(GameDatabase, RoundTripRoundsDoublesToSixDigitsAndIsStable) {
    auto db = Parse(kGolden);
    auto& base = const_cast<CBaseTypeRecord&>(At<CBaseTypeRecord>(db->m_BaseTypes, 0));
    base.m_dQualityFactor = 0.123456789;
    base.m_dBaseCost = 1e-05;
    auto& type = const_cast<CTypeRecord&>(At<CTypeRecord>(db->m_Types, 1));
    type.m_dCostModifier = -0.00001234;
    db->m_dFanaticBonus = 1e20;
    auto& horse = const_cast<CBaseTypeRecord&>(At<CBaseTypeRecord>(db->m_BaseTypes, 1));
    horse.m_dBaseCost = 1234567;
    const std::string text = db->ToText();
    // Written out in full, as the number reader cannot read an exponent.
    for (const char* field :
         {"|0.123457|0.00001|", "|-0.00001234|", "|100000000000000000000|", "|1234570|"}) {
        EXPECT_NE(text.find(field), std::string::npos) << field;
    }
    auto back = Parse(text);
    const auto& backBase = At<CBaseTypeRecord>(back->m_BaseTypes, 0);
    EXPECT_DOUBLE_EQ(backBase.m_dQualityFactor, 0.123457);
    EXPECT_DOUBLE_EQ(backBase.m_dBaseCost, 1e-05);
    EXPECT_DOUBLE_EQ(At<CBaseTypeRecord>(back->m_BaseTypes, 1).m_dBaseCost, 1234570);
    EXPECT_DOUBLE_EQ(At<CTypeRecord>(back->m_Types, 1).m_dCostModifier, -0.00001234);
    EXPECT_DOUBLE_EQ(back->m_dFanaticBonus, 1e20);
    EXPECT_EQ(back->ToText(), text);
}

TEST(GameDatabase, EveryLineEndsInCrLfButTheLast) {
    const std::string text = Parse(kGolden)->ToText();
    ASSERT_GE(text.size(), 4u);
    EXPECT_EQ(text.substr(text.size() - 4), "</F>");
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
        EXPECT_EQ(text[at - 1], '\r') << at;
    }
    CGameDatabase empty;
    EXPECT_EQ(empty.ToText(),
              "\t|\r\n\t0|0|0|0|0|0|\r\n\t0|0|0|0|0|0|0|0|0|0|\r\n\t0|0|0|0|0|0|0|0|0|\r\n\t\r\n"
              "</A>\r\n</B>\r\n</C>\r\n</D>\r\n</E>\r\n\t|\r\n</F>");
}

// Changes to the golden file that the reader must not notice.
TEST(GameDatabase, ReadsTheSameThroughLayoutVariants) {
    const std::pair<const char*, std::string> variants[] = {
        {"bare LF", Replace(kGolden, "\r\n", "\n")},
        {"last line break", kGolden + "\r\n"},
        {"no indentation", Replace(kGolden, "\n\t", "\n")},
        {"weapons end with tabs and bars", Replace(kGolden, "\t\t</W>\r\n", "\t\t</W>|\r\n")},
        {"end tags with tabs and bars",
         Replace(Replace(kGolden, "</B>", "\t\t</B>|"), "</C>", "</C>||")},
        {"sixth header line", Replace(kGolden, "</A>", "anything | at all")},
        {"kind code 255", Replace(kGolden, "</B>\r\n", "\t255|9|Z |Ends kinds|\r\n")},
        {"type code 255", Replace(kGolden, "</D>\r\n", "\t255|Z|0|Ends types|\r\n")},
        {"template code 255", Replace(kGolden, "</F>", "\t255|0|0|0|Ends templates|")},
    };
    for (const auto& [name, text] : variants) {
        EXPECT_EQ(Dump(*Parse(text)), kGoldenDump) << name;
    }
}

TEST(GameDatabase, HeaderWithoutCountryLineLosesTheFirstKind) {
    auto db = Parse(Replace(kGolden, "\tNorland|Sudmark|\r\n", ""));
    EXPECT_EQ(db->m_strCountries[0], "</A>");
    EXPECT_EQ(db->m_strCountries[1], "");
    ASSERT_EQ(db->m_Kinds.Count(), 2);
    EXPECT_EQ(At<CKindRecord>(db->m_Kinds, 0).m_strKeyword, "U ");
    EXPECT_EQ(db->m_BaseTypes.Count(), 2);
}

TEST(GameDatabase, EmptyFieldShiftsLaterFieldsLeft) {
    const std::string dump = Dump(*Parse(Replace(kGolden, "|0.25|", "||")));
    EXPECT_NE(dump.find("base 1 4 2 100 40 0 []\nbase 2 3"), std::string::npos) << dump;
}

TEST(GameDatabase, CountryCountAboveTenIsCutToTen) {
    std::string names;
    for (int i = 0; i < 12; ++i) {
        names += "C" + std::to_string(i) + "|";
    }
    auto db = Parse(Replace(kGolden, "9|2|\r\n\tNorland|Sudmark|", "9|12|\r\n\t" + names));
    EXPECT_EQ(db->m_nCountryCount, 10);
    EXPECT_EQ(db->m_strCountries[9], "C9");
    EXPECT_EQ(db->m_Kinds.Count(), 3);
    EXPECT_NE(db->ToText().find("|9|10|\r\n\tC0|C1|C2|C3|C4|C5|C6|C7|C8|C9|\r\n</A>"),
              std::string::npos);
}

TEST(GameDatabase, FileEndingBeforeAnEndTagKeepsWhatWasRead) {
    const std::string cut = "\t\tRifle|0.2|Rifled musket|\r\n";
    auto db = Parse(kGolden.substr(0, kGolden.find(cut) + cut.size()));
    const std::string dump = Dump(*db);
    EXPECT_EQ(dump.substr(dump.find("type")),
              "type 1 [Fusilier] 0.1 [Fusilier type]\n"
              " weapon [Musket] 0.05 [Smooth musket]\n"
              " weapon [Rifle] 0.2 [Rifled musket]\n"
              "template file []\n");
    // Any cut: the reader stops. A cut inside an end tag leaves a line that reads as one more
    // record; a cut after a whole line keeps only records the whole file has.
    const std::size_t headerEnd = kGolden.find("</A>\r\n") + 6;
    for (std::size_t size = 0; size <= kGolden.size(); ++size) {
        auto part = Parse(kGolden.substr(0, size));
        ASSERT_LE(part->m_Kinds.Count(), 4) << size;
        ASSERT_LE(part->m_Types.Count(), 3) << size;
        ASSERT_LE(part->m_Templates.Count(), 4) << size;
        if (size >= headerEnd && kGolden[size - 1] == '\n') {
            std::istringstream lines(Dump(*part));
            for (std::string line; std::getline(lines, line);) {
                if (line != "template file []") {
                    EXPECT_NE(std::string(kGoldenDump).find(line + "\n"), std::string::npos)
                        << size << ": " << line;
                }
            }
        }
    }
}

TEST(GameDatabase, DataLinesWithTooFewFieldsReadZeroAndEmptyText) {
    std::string text = Replace(kGolden, "\t0|1|U |Unit|", "\t4|");
    text = Replace(text, "\t1|4|0.25|2|100|40|Line foot|", "\t1|4|");
    text = Replace(text, "\t\tMusket|0.05|Smooth musket|", "\t\tMusket");
    text = Replace(text, "\t6|3|1|1500|Brigade|", "\t6");
    const std::string dump = Dump(*Parse(text));
    for (const char* line : {"kind 4 0 [] []\n", "base 1 4 0 0 0 0 []\n", " weapon [Musket] 0 []\n",
                             "template 6 0 0 0 [] #0\n"}) {
        EXPECT_NE(dump.find(line), std::string::npos) << line;
    }
}

TEST(GameDatabase, LineOverTheLimitIsCutAndTheNextLineReadWhole) {
    auto db = Parse(Replace(kGolden, "\t0|1|U |Unit|", "\t0|1|U |" + std::string(300, 'x') + "|"));
    ASSERT_EQ(db->m_Kinds.Count(), 3);
    EXPECT_EQ(At<CKindRecord>(db->m_Kinds, 1).m_strName, std::string(254 - 8, 'x'));
    EXPECT_EQ(At<CKindRecord>(db->m_Kinds, 2).m_strName, "Leader");
}

TEST(GameDatabase, EmptyAndBinaryFilesGiveAnEmptyOrPartialDatabase) {
    auto empty = Parse("");
    EXPECT_EQ(empty->ToText(), CGameDatabase().ToText());
    std::mt19937 random(2024);
    for (int round = 0; round < 200; ++round) {
        std::string bytes(random() % 4096, '\0');
        for (char& c : bytes) {
            // Weighted towards the bytes the reader reacts to.
            const char special[] = {'\n', '\r', '\t', '|', '\0', '5', '-', '.'};
            c = random() % 4 ? static_cast<char>(random()) : special[random() % 8];
        }
        auto db = Parse(bytes);
        const auto lines = static_cast<int>(std::count(bytes.begin(), bytes.end(), '\n')) + 1;
        ASSERT_LE(db->m_Kinds.Count() + db->m_BaseTypes.Count() + db->m_Types.Count() +
                      db->m_AttachedOobs.Count() + db->m_Templates.Count(),
                  lines);
        Parse(db->ToText());
    }
}

TEST(GameDatabase, LoadAndSaveKeepThePath) {
    CTempFolder folder;
    auto db = Parse(kGolden);
    const std::string missing = folder / "missing.inf";
    EXPECT_EQ(db->Load(missing), RESULT_CANNOT_OPEN);
    EXPECT_EQ(db->m_strFilePath, missing);
    EXPECT_EQ(Dump(*db), kGoldenDump);  // the lists stay as they were

    const std::string path = folder / "target.inf";
    WriteBytes(path, "old");
    EXPECT_EQ(db->Save(path), RESULT_DONE);
    EXPECT_EQ(db->m_strFilePath, path);
    EXPECT_EQ(ReadBytes(path), kGolden);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"target.inf"});
    CGameDatabase loaded;
    EXPECT_EQ(loaded.Load(path), RESULT_DONE);
    EXPECT_EQ(loaded.m_strFilePath, path);
    EXPECT_EQ(Dump(loaded), kGoldenDump);

    const std::string unwritable = folder / "no/such/folder.inf";
    EXPECT_EQ(db->Save(unwritable), RESULT_CANNOT_WRITE);
    EXPECT_EQ(db->m_strFilePath, unwritable);
}

}  // namespace
