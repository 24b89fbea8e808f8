#include "base/TextLines.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

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
