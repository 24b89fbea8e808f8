#include "base/LineTokenizer.h"

#include <gtest/gtest.h>

namespace {

CLineTokenizer Tokenize(char delimiter, const std::string& line) {
    CLineTokenizer t;
    t.SetDelimiter(delimiter);
    t.SetLine(line);
    return t;
}

TEST(LineTokenizer, NormalisesSeparatorRunsAndEnds) {
    const std::tuple<char, std::string, std::string> cases[] = {
        {' ', "  word   12\t\t3  ", "word 12 3"},
        {'|', "4|0|Two Words|text|", "4|0|Two Words|text"},
        {'|', "\t\t</W>|", "</W>"},
        {'|', "a||b", "a|b"},
        {' ', " \t \t", ""},
        {' ', std::string(400, 'x'), std::string(CLineTokenizer::kMaxLine, 'x')},
    };
    for (const auto& [delimiter, line, normalised] : cases) {
        EXPECT_EQ(Tokenize(delimiter, line).GetLine(), normalised) << line;
        CLineTokenizer viewing;
        viewing.SetDelimiter(delimiter);
        viewing.ViewLine(line);
        EXPECT_EQ(viewing.GetLine(), normalised) << line;
    }
}

// A viewed line that needs only its ends trimmed is read where the caller holds it; one that
// needs compacting is the tokenizer's own copy, and a later SetLine is never a view.
TEST(LineTokenizer, ViewsOnlyACleanLine) {
    CLineTokenizer t;
    t.SetDelimiter(' ');
    const std::string clean = "\t\tU 12 3 T1 W1 Name";
    t.ViewLine(clean);
    EXPECT_EQ(t.Line().data(), clean.data() + 2);
    const std::string spaced = "U  12 3";
    t.ViewLine(spaced);
    EXPECT_EQ(t.Line(), "U 12 3");
    EXPECT_NE(t.Line().data(), spaced.data());
    t.SetLine(clean);
    EXPECT_NE(t.Line().data(), clean.data() + 2);
    EXPECT_EQ(t.Line(), "U 12 3 T1 W1 Name");
}

// Lines of every length up to past two vector widths with the one tab or doubled delimiter at
// every inner position, and indentation of tabs and blanks of every such depth: the check for
// clean lines must see the run wherever it falls, and the first field starts where the
// indentation ends, whichever step of the search that falls in.
TEST(LineTokenizer, FindsSeparatorRunsAndIndentationAtAnyPosition) {
    for (std::size_t length = 3; length <= 40; ++length) {
        for (std::size_t at = 1; at + 1 < length; ++at) {
            std::string expected(length, 'x');
            expected[at] = ' ';
            std::string tab = expected;
            tab[at] = '\t';
            std::string doubled = expected;
            doubled.insert(at, 1, ' ');
            EXPECT_EQ(Tokenize(' ', tab).GetLine(), expected) << length << " " << at;
            EXPECT_EQ(Tokenize(' ', doubled).GetLine(), expected) << length << " " << at;
        }
        std::string indented;
        for (std::size_t i = 3; i < length; ++i) {  // depths 0 to 37
            indented += i % 3 == 1 ? ' ' : '\t';
        }
        for (const std::string text : {"U", "L 4 4 0 Name", "S 6 1 A supply column of length"}) {
            EXPECT_EQ(Tokenize(' ', indented + text).GetLine(), text) << length << " " << text;
        }
    }
}

TEST(LineTokenizer, ReadsFieldsAfterSeekAndStopsOnTheDelimiter) {
    CLineTokenizer t = Tokenize(' ', "  word   12\t\t3  ");
    t.SeekField(1);
    EXPECT_EQ(t.ReadNumber(), 12.0);
    EXPECT_EQ(t.Position(), 7u);
    t.SeekField(5);
    EXPECT_EQ(t.Position(), t.GetLine().size());
    EXPECT_EQ(t.ReadNumber(), 0.0);
    EXPECT_EQ(t.ReadString(), "");

    CLineTokenizer bars = Tokenize('|', "12|-3.7|x y");
    EXPECT_EQ(bars.ReadNumber(), 12.0);
    EXPECT_EQ(bars.GetLine()[bars.Position()], '|');
    ++bars.Position();
    EXPECT_EQ(StoreTruncated<std::int16_t>(bars.ReadNumber()), -3);
    EXPECT_EQ(bars.ReadString(), "");  // the cursor is on the delimiter
    EXPECT_EQ(bars.ReadRest(), "|x y");
    bars.SetPosition(50);
    EXPECT_EQ(bars.ReadRest(), "");
}

}  // namespace
