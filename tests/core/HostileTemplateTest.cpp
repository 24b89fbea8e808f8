// Template blocks inserted from files the editor never writes: each row gives the tree after
// the chosen block of the file is inserted under an army that holds one unit.
#include <gtest/gtest.h>

#include <climits>
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
    "B First\r\n\tBegin\r\n\tU 1 1 Foot Musket 0 0 Foot\r\n\tEnd\r\n</T>\r\nS 20 12 Train\r\n"
    "</T>\r\n";
const std::string kUnit = "U 1 1 Foot Musket 0 0 ";

class HostileTemplate : public ::testing::Test {
protected:
    // Inserts block ordinal of a file holding text under P, last; gives the tree's shape and,
    // in written, the order-of-battle text of the tree.
    std::string Insert(const std::string& text, int ordinal, std::string* written = nullptr) {
        CGameDatabase db;
        LoadSmallGameData(db);
        COobDocument doc(&db);
        CTreeStore tree;
        WriteBytes(m_folder / "army.oob", "3\nA P\n\tBegin\n\t" + kUnit + "W\n");
        EXPECT_EQ(doc.LoadTree(m_folder / "army.oob", tree), RESULT_DONE);
        WriteBytes(m_folder / "in.tpl", text);
        EXPECT_EQ(doc.m_reader.InsertTemplate(m_folder / "in.tpl", tree, tree.GetRootItem(),
                                              TVI_LAST, ordinal),
                  RESULT_DONE);
        if (written) {
            *written = doc.m_writer.ToText(tree);
        }
        return Shape(tree);
    }

    CTempFolder m_folder;
};

struct Row {
    const char* what;
    std::string input;
    int ordinal;
    std::string shape;
    std::string written;  // found in the text of the tree
};

TEST_F(HostileTemplate, EveryRowInsertsAsDecided) {
    const std::string name = Noise(40, "\n\r\t ", 7);
    const std::string fields = Repeat("w ", 100000);
    const std::string x(kMiB, 'x');
    const Row rows[] = {
        {"the small file, block 0", kSmall, 0, "P(W First(Foot))", "\tB First\r\n\t\tBegin\r\n"},
        {"the small file, block 1", kSmall, 1, "P(W Train)", "\tS 20 12 Train\r\n"},
        {"the small file, no block 2", kSmall, 2, "P(W)", "W\r\n"},
        {"ordinal -1 takes the first block", kSmall, -1, "P(W First(Foot))", "First"},
        {"largest ordinal", kSmall, INT_MAX, "P(W)", "W\r\n"},
        {"empty", "", 0, "P(W)", "W\r\n"},
        // The characters after the last line feed are never read.
        {"noise, no line feed", Noise(4096, "\n"), 0, "P(W)", "W\r\n"},
        {"noise lines without a keyword", Noise(64 * 1024, "ABLUSDGQXY"), 0, "P(W)", "W\r\n"},
        {"unit named with noise", kUnit + name + "\n", 0, "P(W " + name + ")", name},
        // Read at the top level, written a tab deeper: the written line is cut again.
        {"1 MiB unit name", kUnit + x + "\n", 0, "P(W " + x.substr(0, 254 - kUnit.size()) + ")",
         "\t" + kUnit + x.substr(0, 253 - kUnit.size()) + "\r\n"},
        {"1 MiB line ahead of the block", x + "\n" + kSmall, 0, "P(W First(Foot))", "First"},
        {"1 MiB unit name, no line feed", kUnit + x, 0, "P(W)", "W\r\n"},
        {"1 MiB of line feeds", std::string(kMiB, '\n') + kUnit + "a\n", 0, "P(W a)", "a\r\n"},
        {"CR only", Replace(kSmall, "\r\n", "\r"), 0, "P(W)", "W\r\n"},
        {"LF only", Replace(kSmall, "\r\n", "\n"), 1, "P(W Train)", "Train"},
        {"mixed LF and CR LF", MixedLineEnds(kSmall), 0, "P(W First(Foot))", "First"},
        // A second CR is part of the line: no block line and no end tag is recognised.
        {"CR CR LF", Replace(kSmall, "\r\n", "\r\r\n"), 0, "P(W First\r Foot\r Train\r)",
         "\tS 20 12 Train\r\r\n"},
        {"NUL in a name", ReplaceFirst(kSmall, "Train", std::string("Tr\0ain", 6)), 1,
         std::string("P(W Tr\0ain)", 11), std::string("Tr\0ain", 6)},
        {"NUL bytes only", std::string(1000, '\0') + "\n", 0, "P(W)", "W\r\n"},
        {"undefined bytes in a name", ReplaceFirst(kSmall, "Train", kUndefined1252), 1,
         "P(W " + kUndefined1252 + ")", "12 " + kUndefined1252},
        {"undefined bytes as a keyword", ReplaceFirst(kSmall, "S 20", kUndefined1252 + " 20"), 1,
         "P(W)", "W\r\n"},
        // Numbers: truncated toward zero into the field's low bits; no exponent is read.
        {"20 digits in a strength", ReplaceFirst(kSmall, "U 1 1", "U 99999999999999999999 1"), 0,
         "P(W First(Foot))", "U 16384 1 Foot"},
        {"-2147483649 in a quality", ReplaceFirst(kSmall, "U 1 1", "U 1 -2147483649"), 0,
         "P(W First(Foot))", "U 1 -1 Foot"},
        {"1e999", ReplaceFirst(kSmall, "S 20", "S 1e999"), 1, "P(W Train)", "S 1999 12 Train"},
        {"-0", ReplaceFirst(kSmall, "S 20", "S -0"), 1, "P(W Train)", "S 0 12 Train"},
        {"0x10", ReplaceFirst(kSmall, "S 20", "S 0x10"), 1, "P(W Train)", "S 10 12 Train"},
        // Cut at 254 characters, the last of them a blank, which goes.
        {"10^5 fields on a line", kUnit + fields + "\n", 0,
         "P(W " + fields.substr(0, 253 - kUnit.size()) + ")", kUnit + "w w w"},
        // Blocks deeper than a file can hold are counted, and their items passed over.
        {"10^5 Begin lines", Repeat("Begin\n", 100000) + kUnit + "deep\n", 0, "P(W)", "W\r\n"},
        {"10^5 Begin and End lines",
         Repeat("Begin\n", 100000) + kUnit + "deep\n" + Repeat("End\n", 100000) + kUnit + "a\n", 0,
         "P(W a)", "a\r\n"},
        {"more End than Begin lines", Repeat("End\n", 50) + "B b\nBegin\n" + kUnit + "c\n", 0,
         "P(W b(c))", "c\r\n"},
        // The end tag is recognised with blanks and tabs around it, both when the block is read
        // and when the blocks before the chosen one are passed over.
        {"indented end tag, block 0", ReplaceFirst(kSmall, "</T>", "\t</T> "), 0,
         "P(W First(Foot))", "First"},
        {"indented end tag, block 1", ReplaceFirst(kSmall, "</T>", "\t</T> "), 1, "P(W Train)",
         "Train"},
        {"end tag in lower case", ReplaceFirst(kSmall, "</T>", "</t>"), 0, "P(W First(Foot) Train)",
         "Train"},
        {"no end tag, block 1", Replace(kSmall, "</T>\r\n", ""), 1, "P(W)", "W\r\n"},
        {"10^5 end tags, the last block", Repeat("</T>\n", 100000) + kUnit + "a\n", 100000,
         "P(W a)", "a\r\n"},
        {"10^5 end tags, an empty block", Repeat("</T>\n", 100000) + kUnit + "a\n", 99999, "P(W)",
         "W\r\n"},
        {"tabs and blanks between fields", ReplaceFirst(kSmall, "S 20 12", "S\t 20  \t12"), 1,
         "P(W Train)", "\tS 20 12 Train\r\n"},
        // A unit line without its type or weapon is passed over.
        {"unit line cut short", ReplaceFirst(kSmall, "Foot Musket 0 0 Foot", "Foot"), 0,
         "P(W First)", "\tB First\r\n\t\tBegin\r\n\t\tEnd\r\n"},
        {"unknown unit type", ReplaceFirst(kSmall, "Foot Musket", "Zouave Musket"), 0,
         "P(W First(Foot))", "U 1 1 Zouave Musket 0 0 Foot"},
        {"keyword alone", "DEP\n", 0, "P(W )", "\tDEP 0 0 \r\n"},
        {"begin in lower case", ReplaceFirst(kSmall, "Begin", "begin"), 0, "P(W First Foot)",
         "Foot"},
        {"unit inside a unit's block", kUnit + "a\nBegin\n" + kUnit + "b\n", 0, "P(W a(b))",
         "\t\tBegin\r\n\t\t" + kUnit + "b\r\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        std::string written;
        EXPECT_EQ(Insert(row.input, row.ordinal, &written), row.shape);
        EXPECT_NE(written.find(row.written), std::string::npos) << written.substr(0, 600);
    }
}

// The small file cut after every byte: the characters after the last line feed are not read,
// so a cut inserts what the whole lines before it hold, listed line by line for each block.
TEST_F(HostileTemplate, FileCutAtEveryByte) {
    const std::string first = "P(W First)";
    const std::string foot = "P(W First(Foot))";
    const std::string block0[] = {"P(W)", first, first, foot, foot, foot, foot, foot};
    const std::string block1[] = {"P(W)", "P(W)", "P(W)",       "P(W)",
                                  "P(W)", "P(W)", "P(W Train)", "P(W Train)"};
    for (std::size_t n = 0; n <= kSmall.size(); ++n) {
        const std::string cut = kSmall.substr(0, n);
        EXPECT_EQ(Insert(cut, 0), block0[LinesBefore(kSmall, n)]) << n;
        EXPECT_EQ(Insert(cut, 1), block1[LinesBefore(kSmall, n)]) << n;
    }
}

}  // namespace
