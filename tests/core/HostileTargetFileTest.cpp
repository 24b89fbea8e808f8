// The target file reader against inputs no game writes: each row gives what the reader must
// make of them, as record counts and a field as it is written back.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "HostileInputs.h"
#include "base/TextLines.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"

namespace {

using namespace hostile;

const std::string kSmall =
    "\tMarches|\r\n\t0|1|2|3|4|5|\r\n\t48|64|32|40|16|16|16|18|20|16|\r\n"
    "\t3|0|1|0|1|0.5|-9|9|2|\r\n\tNorland|Sudmark|\r\n</A>\r\n"
    "\t7|9|A |Army|\r\n\t0|1|U |Unit|\r\n</B>\r\n\t1|2|0.1|2|5|40|Foot|\r\n</C>\r\n"
    "\t1|Fus|0.2|Fusilier|\r\n\t\tMusket|0.3|Musket|\r\n\t\t</W>\r\n</D>\r\n"
    "\tnorth.oob|North|\r\n</E>\r\n\tt.tpl|\r\n\t6|3|1|1500|Brigade|\r\n</F>";
const char* const kSmallCounts = "k2 b1 t1 w1 o1 f1";

// Kinds, base types, types, weapons, attached orders of battle, templates.
std::string Counts(CGameDatabase& db) {
    int weapons = 0;
    for (CDataListNode* n = db.m_Types.Head(); n; n = n->m_pNext) {
        weapons += static_cast<CTypeRecord&>(*n->m_pPayload).m_Weapons.Count();
    }
    return Format("k%d b%d t%d w%d o%d f%d", db.m_Kinds.Count(), db.m_BaseTypes.Count(),
                  db.m_Types.Count(), weapons, db.m_AttachedOobs.Count(), db.m_Templates.Count());
}

std::string Read(const std::string& text, CGameDatabase& db) {
    std::istringstream in(text);
    db.ReadFrom(in);
    return Counts(db);
}

const std::string kUnitKind = "\t0|1|U |Unit|\r\n";
const std::string kBase = "\t1|2|0.1|2|5|40|Foot|\r\n";

struct Row {
    const char* what;
    std::string input;
    const char* counts;
    std::string written;  // found in the text the database writes back
};

TEST(HostileTargetFile, EveryRowReadsAsDecided) {
    const std::string x(kMiB, 'x');
    const std::string noLine = Noise(4096, "\n\r\t|");
    // Four fields of noise without a digit: a kind of code 0, level 0, with a noise keyword.
    const std::string field = Noise(9, "\n\r\t|0123456789");
    const std::string noiseLines = Repeat(Repeat(field + "|", 4) + "\n", 100);
    const Row rows[] = {
        {"the small file", kSmall, kSmallCounts, kSmall},
        {"empty", "", "k0 b0 t0 w0 o0 f0", "\t|\r\n\t0|0|0|0|0|0|\r\n"},
        {"one line break", "\r\n", "k0 b0 t0 w0 o0 f0", "\t|\r\n"},
        // Noise with no line break is the name line, cut at 254 bytes.
        {"noise, one line", "\t" + noLine, "k0 b0 t0 w0 o0 f0",
         "\t" + noLine.substr(0, 253) + "\r\n"},
        {"noise lines", noiseLines, "k94 b0 t0 w0 o0 f0",
         "</A>\r\n\t0|0|" + field + "|" + field + "|\r\n"},
        {"1 MiB name line", ReplaceFirst(kSmall, "Marches", x), kSmallCounts,
         "\t" + x.substr(0, 253) + "\r\n"},
        {"1 MiB kind name", ReplaceFirst(kSmall, "Unit|", x + "|"), kSmallCounts,
         "\t0|1|U |" + x.substr(0, 254 - 8) + "\r\n</B>"},
        {"1 MiB of bars among the kinds",
         ReplaceFirst(kSmall, kUnitKind, std::string(kMiB, '|') + "\r\n"), "k1 b1 t1 w1 o1 f1",
         "\t7|9|A |Army|\r\n</B>"},
        {"10^5 blank lines", std::string(100000, '\n'), "k0 b0 t0 w0 o0 f0", "\t|\r\n"},
        // Only LF ends a line: with CR alone the file is one line, the name line.
        {"CR only", Replace(kSmall, "\r\n", "\r"), "k0 b0 t0 w0 o0 f0",
         "\tMarches|\r\n\t0|0|0|0|0|0|\r\n"},
        {"LF only", Replace(kSmall, "\r\n", "\n"), kSmallCounts, kSmall},
        {"mixed LF and CR LF", MixedLineEnds(kSmall), kSmallCounts, kSmall},
        // One CR before the LF is dropped; a second stays, and an end tag with it is no end tag:
        // the kinds run on to the end of the file.
        {"CR CR LF", Replace(kSmall, "\r\n", "\r\r\n"), "k7 b0 t0 w0 o0 f0",
         "\t0|0|Musket|\r|\r\n"},
        {"NUL in the name", ReplaceFirst(kSmall, "Marches", std::string("Mar\0ches", 8)),
         kSmallCounts, std::string("\tMar\0ches|\r\n", 12)},
        {"NUL bytes only", "\t" + std::string(1000, '\0'), "k0 b0 t0 w0 o0 f0",
         "\t" + std::string(253, '\0') + "\r\n"},
        // NUL is no separator: the line is one number field, and the kind has no keyword.
        {"NUL line among the kinds", ReplaceFirst(kSmall, kUnitKind, std::string(3, '\0') + "\n"),
         "k1 b1 t1 w1 o1 f1", "\t7|9|A |Army|\r\n</B>"},
        {"undefined bytes in a name", ReplaceFirst(kSmall, "Norland", kUndefined1252), kSmallCounts,
         "\t" + kUndefined1252 + "|Sudmark|\r\n"},
        {"undefined bytes as a keyword", ReplaceFirst(kSmall, "U |", kUndefined1252 + "|"),
         kSmallCounts, "\t0|1|" + kUndefined1252 + "|Unit|\r\n"},
        // Numbers: truncated toward zero into the field's low bits; no exponent is read, and
        // letters and a second sign are passed over.
        {"20 digits in an 8-bit code", ReplaceFirst(kSmall, "\t7|9|", "\t99999999999999999999|9|"),
         kSmallCounts, "\t0|9|A |Army|\r\n"},
        // The digits sum to the double 100000000000000016384, whose low 16 bits are 16384.
        {"20 digits in a 16-bit size", ReplaceFirst(kSmall, "\t48|", "\t99999999999999999999|"),
         kSmallCounts, "\t16384|64|32|"},
        {"-2147483649 in a 16-bit quality", ReplaceFirst(kSmall, "|-9|", "|-2147483649|"),
         kSmallCounts, "|0.5|-1|9|2|"},
        {"-2147483649 in an 8-bit level", ReplaceFirst(kSmall, "\t7|9|", "\t7|-2147483649|"),
         kSmallCounts, "\t7|255|A |"},
        {"1e999 in a double", ReplaceFirst(kSmall, "|0.5|", "|1e999|"), kSmallCounts, "|1999|"},
        {"1e999 in a 16-bit field", ReplaceFirst(kSmall, "|40|Foot|", "|1e999|Foot|"), kSmallCounts,
         "|5|1999|Foot|"},
        {"-0 in a double", ReplaceFirst(kSmall, "|0.5|", "|-0|"), kSmallCounts, "|1|-0|-9|"},
        {"-0 in an integer", ReplaceFirst(kSmall, "|-9|", "|-0|"), kSmallCounts, "|0.5|0|9|"},
        {"0x10", ReplaceFirst(kSmall, "\t48|", "\t0x10|"), kSmallCounts, "\t10|64|"},
        {"1.2.3 in a double", ReplaceFirst(kSmall, "|0.1|", "|1.2.3|"), kSmallCounts,
         "\t1|2|1.23|2|"},
        {"--5 and 5-", ReplaceFirst(kSmall, "|-9|9|", "|--5|5-|"), kSmallCounts, "|-5|5|2|"},
        // A count above ten is cut to ten; its names beyond the line are empty.
        {"country count 200", ReplaceFirst(kSmall, "|9|2|", "|9|200|"), kSmallCounts,
         "|9|10|\r\n\tNorland|Sudmark|||||||||\r\n"},
        {"country count -1", ReplaceFirst(kSmall, "|9|2|", "|9|-1|"), kSmallCounts, "|9|10|"},
        {"10^5 fields on the kind line",
         ReplaceFirst(kSmall, kUnitKind, "\t" + Repeat("1|", 100000) + "\r\n"), kSmallCounts,
         "\t1|1|1|1|\r\n</B>"},
        {"10^5 countries", ReplaceFirst(kSmall, "Norland|Sudmark|", Repeat("N|", 100000)),
         kSmallCounts, "\tN|N|\r\n</A>"},
        // "Begin" and "End" mean nothing here: a line of one word has no keyword and names no
        // kind, but a weapon it names.
        {"10^5 Begin lines among the kinds",
         ReplaceFirst(kSmall, kUnitKind, Repeat("\tBegin\r\n", 100000)), "k1 b1 t1 w1 o1 f1",
         "\t7|9|A |Army|\r\n</B>"},
        {"10^5 Begin lines among the weapons",
         ReplaceFirst(kSmall, "\t\t</W>", Repeat("\tBegin\r\n", 100000) + "\t\t</W>"),
         "k2 b1 t1 w100001 o1 f1", "\t\tBegin|0||\r\n"},
        {"more End than Begin lines among the kinds",
         ReplaceFirst(kSmall, kUnitKind, "\tBegin\r\n" + Repeat("\tEnd\r\n", 50)),
         "k1 b1 t1 w1 o1 f1", "\t7|9|A |Army|\r\n</B>"},
        {"blank line among the kinds", ReplaceFirst(kSmall, kUnitKind, "\t\r\n" + kUnitKind),
         kSmallCounts, kSmall},
        // A blank type line is passed over with its weapon lines, which run to the next "</W>":
        // here every line left.
        {"blank line among the types", ReplaceFirst(kSmall, "</D>", "\r\n</D>"),
         "k2 b1 t1 w1 o0 f0", "\t\t</W>\r\n</D>\r\n</E>\r\n\t|\r\n</F>"},
        {"blank line among the weapons", ReplaceFirst(kSmall, "\t\t</W>", "\r\n\t\t</W>"),
         kSmallCounts, kSmall},
        // Base types and templates are kept blank, as class or type code 0.
        {"blank line among the base types", ReplaceFirst(kSmall, "</C>", "\r\n</C>"),
         "k2 b2 t1 w1 o1 f1", "\t0|0|0|0|0|0||\r\n</C>"},
        {"blank line among the templates", ReplaceFirst(kSmall, "</F>", "\r\n</F>"),
         "k2 b1 t1 w1 o1 f2", "\t0|0|0|0||\r\n</F>"},
        {"tabs and doubled bars as separators",
         ReplaceFirst(kSmall, "\t7|9|A |Army|", "7\t\t9||A ||\tArmy\t"), kSmallCounts, kSmall},
        // Code 255 ends a section as its end tag would; the end tag is then a record of the
        // next section.
        {"kind code 255", ReplaceFirst(kSmall, "\t0|1|U |", "\t255|1|U |"), "k1 b2 t1 w1 o1 f1",
         "</B>\r\n\t0|0|0|0|0|0||\r\n\t1|2|"},
        // Without "</D>" the attached list and the templates are read as one more type, its
        // weapons.
        {"no end of the types", ReplaceFirst(kSmall, "</D>\r\n", ""), "k2 b1 t2 w5 o0 f0",
         "\t0|North|0||\r\n\t\t</E>|0||\r\n\t\tt.tpl|0||\r\n"},
        {"end tag with a blank", ReplaceFirst(kSmall, "</B>", "</B> "), "k6 b0 t0 w0 o0 f0",
         "\t1|2|0.1|2|\r\n"},
        {"header only", kSmall.substr(0, kSmall.find("</A>")), "k0 b0 t0 w0 o0 f0",
         "\tNorland|Sudmark|\r\n</A>\r\n</B>"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        CGameDatabase db;
        EXPECT_EQ(Read(row.input, db), row.counts);
        const std::string written = db.ToText();
        EXPECT_NE(written.find(row.written), std::string::npos) << written.substr(0, 600);
        // What was written reads back as the same database.
        CGameDatabase again;
        EXPECT_EQ(Read(written, again), row.counts);
        EXPECT_EQ(again.ToText(), written);
    }
}

// The small file cut after every byte. A cut after a line break reads the whole lines before
// it, whose counts are listed line by line; a cut inside a line reads that line as the file's
// last, as if its line feed followed (a cut inside an end tag is a record of its section).
TEST(HostileTargetFile, FileCutAtEveryByte) {
    const char* const afterLines[] = {
        "k0 b0 t0 w0 o0 f0", "k0 b0 t0 w0 o0 f0", "k0 b0 t0 w0 o0 f0", "k0 b0 t0 w0 o0 f0",
        "k0 b0 t0 w0 o0 f0", "k0 b0 t0 w0 o0 f0", "k0 b0 t0 w0 o0 f0", "k1 b0 t0 w0 o0 f0",
        "k2 b0 t0 w0 o0 f0", "k2 b0 t0 w0 o0 f0", "k2 b1 t0 w0 o0 f0", "k2 b1 t0 w0 o0 f0",
        "k2 b1 t1 w0 o0 f0", "k2 b1 t1 w1 o0 f0", "k2 b1 t1 w1 o0 f0", "k2 b1 t1 w1 o0 f0",
        "k2 b1 t1 w1 o1 f0", "k2 b1 t1 w1 o1 f0", "k2 b1 t1 w1 o1 f0", "k2 b1 t1 w1 o1 f1",
    };
    for (std::size_t n = 0; n <= kSmall.size(); ++n) {
        SCOPED_TRACE(n);
        const std::string cut = kSmall.substr(0, n);
        CGameDatabase db;
        const std::string counts = Read(cut, db);
        if (n == 0 || kSmall[n - 1] == '\n') {
            EXPECT_EQ(counts, afterLines[LinesBefore(kSmall, n)]);
        } else {
            CGameDatabase ended;
            EXPECT_EQ(counts, Read(cut + "\n", ended));
            EXPECT_EQ(db.ToText(), ended.ToText());
        }
    }
    CGameDatabase whole;
    EXPECT_EQ(Read(kSmall, whole), kSmallCounts);
}

}  // namespace
