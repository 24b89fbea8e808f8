#include "model/TextLines.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>

namespace {

// Every line of input as "L:text" (Line) or "Z:text" (LastLine), then "E" at the end.
std::string ReadAllLines(const std::string& input) {
    std::istringstream in(input);
    std::string out;
    std::string line;
    for (int guard = 0; guard < 100; ++guard) {
        const LineRead read = ReadTextLine(in, line);
        if (read == LineRead::End) {
            return out + "E";
        }
        out += (read == LineRead::Line ? "L:" : "Z:") + line + " ";
    }
    return out + "no end";
}

TEST(TextLines, ReadsLinesEndedByCrLfOrLf) {
    const std::string x254(254, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {"", "E"},
        {"a\r\nb\nc", "L:a L:b Z:c E"},
        {"\n\r\n", "L: L: E"},
        {"a\r\r\nb\r", "L:a\r Z:b E"},  // one carriage return before the line feed is dropped
        {x254 + "yz\r\nnext\n", "L:" + x254 + " L:next E"},  // the rest of a long line is dropped
        {std::string(5000, 'y') + "\nnext", "L:" + std::string(254, 'y') + " Z:next E"},
        {std::string("a\0b\n", 4), std::string("L:a\0b E", 7)},
    };
    for (const auto& [input, expected] : cases) {
        EXPECT_EQ(ReadAllLines(input), expected) << input.substr(0, 20);
    }
}

// Six significant digits and never an exponent, which the number reader cannot read.
TEST(TextLines, FormatsNumbersAsGeneralFormWithoutExponent) {
    const std::pair<double, const char*> cases[] = {
        {0, "0"},
        {-3.75, "-3.75"},
        {0.123456789, "0.123457"},
        {1e-05, "0.00001"},
        {0.000012345678, "0.0000123457"},
        {999999.5, "1000000"},
        {1234567, "1234570"},
        {1e20, "100000000000000000000"},
        {std::numeric_limits<double>::infinity(), "0"},
        {std::numeric_limits<double>::quiet_NaN(), "0"},
    };
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(FormatNumber(value), text) << value;
    }
}

}  // namespace
