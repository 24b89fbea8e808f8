// The order-of-battle file reader against inputs no editor writes: each row gives the tree the
// reader must build, and a line of what the writer then makes of it.
#include <gtest/gtest.h>

#include <string>

#include "HostileInputs.h"
#include "SmallGameData.h"
#include "TempFolder.h"
#include "TestTrees.h"
#include "base/Result.h"
#include "model/OobDocument.h"

namespace {

using namespace hostile;

const std::string kSmall =
    "3\r\nA Army\r\n\tBegin\r\n\tL 4 7 0 Marshal\r\n\tU 10 3 Foot Musket 1 2 Line\r\n\tEnd\r\n"
    "DEP 6 4 Depot\r\n";
const char* const kSmallShape = "Army(Marshal Line) Depot";
const std::string kUnitLine = "\tU 10 3 Foot Musket 1 2 Line\r\n";
const std::string kUnit = "U 1 1 Foot Musket 0 0 ";

// Reads text as an order-of-battle file on fresh game data; gives the tree's shape and, in
// written, what the writer makes of the tree.
std::string Load(const std::string& text, std::string* written = nullptr) {
    CTempFolder folder;
    WriteBytes(folder / "in.oob", text);
    CGameDatabase db;
    LoadSmallGameData(db);
    COobDocument doc(&db);
    CTreeStore tree;
    EXPECT_EQ(doc.LoadTree(folder / "in.oob", tree), RESULT_DONE);
    if (written) {
        *written = doc.m_writer.ToText(tree);
    }
    return Shape(tree);
}

struct Row {
    const char* what;
    std::string input;
    std::string shape;
    std::string written;  // found in the text the writer makes of the tree
};

TEST(HostileOobFile, EveryRowReadsAsDecided) {
    // Noise lines without a keyword's letter: no line names a kind.
    const std::string noise = Noise(64 * 1024, "ABLUSDGQXY");
    const std::string name = Noise(40, "\n\r\t ", 7);
    const std::string fields = Repeat("w ", 100000);
    const Row rows[] = {
        {"the small file", kSmall, kSmallShape, kSmall},
        {"empty", "", "", "3\r\n"},
        // The characters after the last line feed are never read.
        {"noise, no line feed", Noise(4096, "\n"), "", "3\r\n"},
        {"noise lines without a keyword", noise, "", "3\r\n"},
        {"units named with noise", Repeat(kUnit + name + "\n", 10),
         name + " " + name + " " + name + " " + name + " " + name + " " + name + " " + name + " " +
             name + " " + name + " " + name,
         kUnit + name + "\r\n"},
        {"1 MiB unit name", kUnit + std::string(kMiB, 'x') + "\n",
         std::string(254 - kUnit.size(), 'x'), kUnit + std::string(254 - kUnit.size(), 'x')},
        {"1 MiB line before the small file", std::string(kMiB, 'x') + "\n" + kSmall, kSmallShape,
         kSmall},
        {"1 MiB unit name, no line feed", kUnit + std::string(kMiB, 'x'), "", "3\r\n"},
        {"1 MiB of line feeds", std::string(kMiB, '\n'), "", "3\r\n"},
        {"CR only", Replace(kSmall, "\r\n", "\r"), "", "3\r\n"},
        {"LF only", Replace(kSmall, "\r\n", "\n"), kSmallShape, kSmall},
        {"mixed LF and CR LF", MixedLineEnds(kSmall), kSmallShape, kSmall},
        // One CR before the LF is dropped; a second is part of the line, so "Begin" and "End"
        // are no block lines and every item stands at the top level.
        {"CR CR LF", Replace(kSmall, "\r\n", "\r\r\n"), "Army\r Marshal\r Line\r Depot\r",
         "A Army\r\r\n\tBegin\r\n\tEnd\r\nL 4 7 0 Marshal\r\r\n"},
        {"NUL in a name", ReplaceFirst(kSmall, "Army\r", std::string("Ar\0my\r", 6)),
         std::string("Ar\0my(Marshal Line) Depot", 25), std::string("A Ar\0my\r\n", 9)},
        {"NUL bytes only", std::string(1000, '\0') + "\n", "", "3\r\n"},
        // A line that begins with NUL names no kind: the army is passed over and its block
        // holds the top level.
        {"NUL before a keyword", ReplaceFirst(kSmall, "A Army", std::string("\0A Army", 7)),
         "Marshal Line Depot", "3\r\nL 4 7 0 Marshal\r\n"},
        {"undefined bytes in a name", ReplaceFirst(kSmall, "Depot", kUndefined1252),
         "Army(Marshal Line) " + kUndefined1252, "DEP 6 4 " + kUndefined1252 + "\r\n"},
        {"undefined bytes as a keyword", ReplaceFirst(kSmall, "DEP ", kUndefined1252 + " "),
         "Army(Marshal Line)", "1 2 Line\r\n"},
        // Numbers: truncated toward zero into the field's low bits; no exponent is read, and
        // letters are passed over.
        {"20 digits in a 16-bit strength", ReplaceFirst(kSmall, "U 10 ", "U 99999999999999999999 "),
         kSmallShape, "\tU 16384 3 Foot"},
        {"20 digits in a 32-bit picture",
         ReplaceFirst(kSmall, "Musket 1 ", "Musket 99999999999999999999 "), kSmallShape,
         "Musket 1662009344 2 Line"},
        {"-2147483649 in a 16-bit quality", ReplaceFirst(kSmall, "U 10 3 ", "U 10 -2147483649 "),
         kSmallShape, "\tU 10 -1 Foot"},
        {"-2147483649 in a 32-bit icon", ReplaceFirst(kSmall, "1 2 Line", "1 -2147483649 Line"),
         kSmallShape, "Musket 1 2147483647 Line"},
        {"1e999", ReplaceFirst(kSmall, "U 10 ", "U 1e999 "), kSmallShape, "\tU 1999 3 Foot"},
        {"-0", ReplaceFirst(kSmall, "U 10 ", "U -0 "), kSmallShape, "\tU 0 3 Foot"},
        {"0x10", ReplaceFirst(kSmall, "DEP 6 4", "DEP 6 0x10"), kSmallShape, "DEP 6 10 Depot"},
        // Cut at 254 characters, the last of them a blank, which goes.
        {"10^5 fields on a line", kUnit + fields + "\n", fields.substr(0, 253 - kUnit.size()),
         "\r\n" + kUnit + "w w w"},
        // Blocks too deep for the tree are counted, so that their "End" lines close them; the
        // items inside are passed over.
        {"10^5 Begin lines", kSmall + Repeat("Begin\r\n", 100000) + kUnit + "Deep\r\n", kSmallShape,
         kSmall},
        {"10^5 Begin and End lines",
         kSmall + Repeat("Begin\r\n", 100000) + kUnit + "Deep\r\n" + Repeat("End\r\n", 100000) +
             kUnit + "Top\r\n",
         "Army(Marshal Line) Depot Top", "Depot\r\n" + kUnit + "Top\r\n"},
        {"more End than Begin lines",
         kSmall + Repeat("End\r\n", 50) + "A Second\r\n\tBegin\r\n\t" + kUnit + "Inner\r\n",
         "Army(Marshal Line) Depot Second(Inner)", "A Second\r\n\tBegin\r\n\t" + kUnit + "Inner"},
        {"End lines before the first item", "End\r\nEnd\r\n" + kSmall, kSmallShape, kSmall},
        {"Begin between blanks and tabs", ReplaceFirst(kSmall, "\tBegin", " \t Begin \t"),
         kSmallShape, kSmall},
        // Block lines are matched whole and exactly: "begin" is a line of no kind.
        {"begin in lower case", ReplaceFirst(kSmall, "\tBegin", "\tbegin"),
         "Army Marshal Line Depot", "\tEnd\r\nL 4 7 0 Marshal\r\n"},
        {"end tag of a template", ReplaceFirst(kSmall, "DEP", "</T>\r\nDEP"), kSmallShape, kSmall},
        {"no header line", kSmall.substr(3), kSmallShape, kSmall},
        {"20-digit header", "99999999999999999999" + kSmall.substr(1), kSmallShape, kSmall},
        {"tabs and blanks between fields",
         ReplaceFirst(kSmall, "U 10 3 Foot", "U \t 10\t\t3  Foot"), kSmallShape, kSmall},
        {"lines of two characters", ReplaceFirst(kSmall, "DEP", "ab\r\nA\r\n\t\r\nDEP"),
         kSmallShape, kSmall},
        // A unit line without its type or weapon is passed over.
        {"unit line cut short", ReplaceFirst(kSmall, kUnitLine, "\tU 10 3 Foot\r\n"),
         "Army(Marshal) Depot", "\tL 4 7 0 Marshal\r\n\tEnd\r\n"},
        // A type the game data lacks is added to it; the unit keeps its line.
        {"unknown unit type", ReplaceFirst(kSmall, "Foot Musket", "Zouave Musket"), kSmallShape,
         "\tU 10 3 Zouave Musket 1 2 Line\r\n"},
        // A keyword alone is an item with every field 0 and no name.
        {"keyword alone", kSmall + "DEP\r\n", "Army(Marshal Line) Depot ", "Depot\r\nDEP 0 0 \r\n"},
        {"unit inside a unit's block",
         ReplaceFirst(kSmall, kUnitLine,
                      kUnitLine + "\tBegin\r\n\t\t" + kUnit + "Under\r\n\tEnd\r\n"),
         "Army(Marshal Line(Under)) Depot", "\t\tBegin\r\n\t\t" + kUnit + "Under\r\n\t\tEnd\r\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        std::string written;
        EXPECT_EQ(Load(row.input, &written), row.shape);
        EXPECT_NE(written.find(row.written), std::string::npos) << written.substr(0, 600);
        // What was written reads back as the same tree.
        EXPECT_EQ(Load(written), row.shape);
    }
}

// The small file cut after every byte: the characters after the last line feed are not read,
// so a cut gives the tree of the whole lines before it, listed line by line.
TEST(HostileOobFile, FileCutAtEveryByte) {
    const char* const afterLines[] = {
        "",         "", "Army", "Army", "Army(Marshal)", "Army(Marshal Line)", "Army(Marshal Line)",
        kSmallShape};
    for (std::size_t n = 0; n <= kSmall.size(); ++n) {
        EXPECT_EQ(Load(kSmall.substr(0, n)), afterLines[LinesBefore(kSmall, n)]) << n;
    }
}

// A path that names no file, or a folder, is refused by the file reader and by the template
// reader, and the tree is left as it was.
TEST(HostileOobFile, PathsThatAreNoFileAreRefused) {
    CTempFolder folder;
    COobDocument doc(nullptr);
    CTreeStore tree;
    tree.InsertItem("kept", TVI_ROOT, TVI_LAST);
    for (const std::string& path : {folder / "missing.oob", folder.Path()}) {
        EXPECT_EQ(doc.LoadTree(path, tree), RESULT_CANNOT_OPEN) << path;
        EXPECT_EQ(doc.m_reader.InsertTemplate(path, tree, TVI_ROOT, TVI_LAST, 0),
                  RESULT_CANNOT_OPEN)
            << path;
    }
    EXPECT_EQ(Shape(tree), "kept");
}

}  // namespace
