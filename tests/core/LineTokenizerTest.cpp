#include "model/LineTokenizer.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

CLineTokenizer Tokenize(char delimiter, const std::string& line) {
    CLineTokenizer t;
    t.SetDelimiter(delimiter);
    t.SetLine(line);
    return t;
}

TEST(LineTokenizer, NormalisesSeparatorRunsAndEnds) {
    EXPECT_EQ(Tokenize(' ', "\t\tBegin").GetLine(), "Begin");
    EXPECT_EQ(Tokenize(' ', "  word   12\t\t3  ").GetLine(), "word 12 3");
    EXPECT_EQ(Tokenize('|', "4|0|Two Words|text|").GetLine(), "4|0|Two Words|text");
    EXPECT_EQ(Tokenize('|', "\t\t</W>|").GetLine(), "</W>");
    EXPECT_EQ(Tokenize('|', "a||b").GetLine(), "a|b");
    EXPECT_EQ(Tokenize(' ', "").GetLine(), "");
    EXPECT_EQ(Tokenize(' ', " \t \t").GetLine(), "");
}

TEST(LineTokenizer, CutsLinesLongerThanTheCursorCanReach) {
    EXPECT_EQ(Tokenize(' ', std::string(400, 'x')).GetLine().size(), CLineTokenizer::kMaxLine);
}

TEST(LineTokenizer, ReadsFieldsAfterSeek) {
    CLineTokenizer t = Tokenize(' ', "  word   12\t\t3  ");
    t.SeekField(1);
    EXPECT_EQ(t.Position(), 5u);
    EXPECT_EQ(t.ReadNumber(), 12.0);
    EXPECT_EQ(t.Position(), 7u);
    ++t.Position();
    EXPECT_EQ(t.ReadNumber(), 3.0);
    t.SeekField(5);
    EXPECT_EQ(t.Position(), t.GetLine().size());
    EXPECT_EQ(t.ReadNumber(), 0.0);
    EXPECT_EQ(t.ReadString(), "");
}

TEST(LineTokenizer, ReadsNumbersAsTheGameWritesThem) {
    struct Case {
        const char* field;
        double value;
    } cases[] = {
        {"-7", -7},  {"0.25", 0.25}, {"12abc", 12}, {"1.5.3", 1.53}, {"abc", 0},
        {"4-2", 42}, {"", 0},        {"007", 7},    {"3.", 3},       {"-0.5", -0.5},
    };
    for (const auto& c : cases) {
        CLineTokenizer t = Tokenize(' ', c.field);
        EXPECT_DOUBLE_EQ(t.ReadNumber(), c.value) << c.field;
        EXPECT_EQ(t.Position(), t.GetLine().size()) << c.field;
    }
    CLineTokenizer minus = Tokenize(' ', "-");
    const double zero = minus.ReadNumber();
    EXPECT_EQ(zero, 0.0);
    EXPECT_TRUE(std::signbit(zero));
    EXPECT_EQ(StoreTruncated<int>(zero), 0);
}

TEST(LineTokenizer, NumberStopsOnTheDelimiter) {
    CLineTokenizer t = Tokenize('|', "12|-3.7|300|");
    EXPECT_EQ(StoreTruncated<std::int16_t>(t.ReadNumber()), 12);
    EXPECT_EQ(t.GetLine()[t.Position()], '|');
    ++t.Position();
    EXPECT_EQ(StoreTruncated<std::int16_t>(t.ReadNumber()), -3);
    ++t.Position();
    EXPECT_EQ(StoreTruncated<std::uint8_t>(t.ReadNumber()), 44);
}

TEST(LineTokenizer, TruncationKeepsTheLowBitsOfAnyValue) {
    EXPECT_EQ(StoreTruncated<std::int16_t>(3.7), 3);
    EXPECT_EQ(StoreTruncated<std::int16_t>(-2.5), -2);
    EXPECT_EQ(StoreTruncated<std::uint8_t>(300.0), 44);
    EXPECT_EQ(StoreTruncated<std::int16_t>(65537.0), 1);
    EXPECT_EQ(StoreTruncated<std::int16_t>(-1.0), -1);
    EXPECT_EQ(StoreTruncated<std::int32_t>(-2147483649.0), 2147483647);
    EXPECT_EQ(StoreTruncated<std::int32_t>(1e20), StoreTruncated<std::int32_t>(1e20));
    EXPECT_EQ(StoreTruncated<std::int32_t>(INFINITY), 0);
    EXPECT_EQ(StoreTruncated<std::int32_t>(NAN), 0);
}

TEST(LineTokenizer, StringsAndRest) {
    CLineTokenizer t = Tokenize(' ', "one two three");
    EXPECT_EQ(t.ReadString(), "one");
    EXPECT_EQ(t.ReadString(), "");  // the cursor is on the delimiter
    EXPECT_EQ(t.Position(), 3u);
    EXPECT_EQ(t.ReadRest(), " two three");
    EXPECT_EQ(t.Position(), 3u);
    t.SetPosition(50);
    EXPECT_EQ(t.ReadRest(), "");
    EXPECT_EQ(t.ReadString(), "");
}

TEST(LineTokenizer, MatchesPrefixOverTheShorterLength) {
    EXPECT_TRUE(Tokenize(' ', "Army First Army").MatchesPrefix("Army"));
    EXPECT_TRUE(Tokenize(' ', "Arm").MatchesPrefix("Army"));
    EXPECT_FALSE(Tokenize(' ', "Corps First").MatchesPrefix("Army"));
    EXPECT_TRUE(Tokenize(' ', "").MatchesPrefix("Army"));
    EXPECT_TRUE(Tokenize(' ', "L 4 4 0 Name").MatchesPrefix("L "));
}

}  // namespace
