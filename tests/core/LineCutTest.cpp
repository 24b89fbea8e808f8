#include "base/LineCut.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Each case: the text as a writer made it, and as it is written: every line no longer than the
// readers take, cut as they cut it, without the separators left at the cut.
TEST(LineCut, OverLongLinesAreCutAsTheReadersCutThem) {
    const std::string x254(254, 'x');
    const std::string x250(250, 'x');
    const struct {
        char delimiter;
        std::string text, written;
    } cases[] = {
        {' ', x254 + "\r\n", x254 + "\r\n"},
        {' ', x254 + "y\r\n", x254 + "\r\n"},
        {' ', "\t\t" + x254 + "\r\nB\r\n", "\t\t" + x254.substr(2) + "\r\nB\r\n"},
        {' ', x250 + " \t  yyyy\r\n", x250 + "\r\n"},
        {' ', x250 + "||||yyyy\r\n", x250 + "||||\r\n"},
        {'|', x250 + "|\t||yyyy|", x250},
        {'|', x250 + "    yyyy|\r\n", x250 + "    \r\n"},  // blanks belong to a '|' field
        {'|', "A\r\n" + x254 + "yy", "A\r\n" + x254},
        {'|', "A\n" + x254 + "y\n" + x254 + "\n", "A\n" + x254 + "\n" + x254 + "\n"},
        {'|', "", ""},
    };
    for (const auto& c : cases) {
        std::string whole = c.text;
        CutOverLongLines(whole, c.delimiter);
        EXPECT_EQ(whole, c.written) << c.text;
    }
}

}  // namespace
