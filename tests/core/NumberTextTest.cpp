#include "base/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

std::string Printf(const char* format, double value) {
    char buffer[512];
    std::snprintf(buffer, sizeof buffer, format, value);
    return buffer;
}

std::string General(double value) {
    char text[kGeneralRoom];
    return "<" + std::string(text, WriteGeneral(text, value));
}

std::string Fixed(double value) {
    std::string out = "<";
    AppendFixed(out, value, 2, 10);
    return out;
}

// Values at the edges of the direct paths: ties and near-ties of the last digit, roundings that
// carry into a new digit or exponent, the ends of the "%f" range of "%g", signed zero, values
// too large or too small for the direct path, and those printf spells out.
constexpr double kTricky[] = {
    0.0,           -0.0,           0.125,    0.375,    -0.001,         0.005,   1.005,   2.5,
    9.9999995,     99999.95,       123456.5, 999999.4, 999999.5,       1234565, 9999995, 0.0001,
    0.00009999995, 0.000099999949, 1e-5,     1e10,     9999999999.995, 1e15,    1e300,   -1e-300};

// The tricky values, then costs and totals of every size, with many values on or next to a tie
// of the last digit.
TEST(NumberText, ValuesAreWrittenAsPrintfWritesThem) {
    using Limits = std::numeric_limits<double>;
    std::vector<double> values(std::begin(kTricky), std::end(kTricky));
    values.insert(values.end(), {Limits::denorm_min(), Limits::quiet_NaN(), -Limits::quiet_NaN(),
                                 Limits::infinity(), -Limits::infinity()});
    std::mt19937_64 random(20261123);
    for (int i = 0; i < 20000; ++i) {
        const double magnitude = std::pow(10.0, static_cast<double>(random() % 24) - 8.0);
        for (double value : {
                 static_cast<double>(random() % 100000000) / 1e8 * magnitude,
                 static_cast<double>(random() % 10000000) / 100.0 + 0.005,
                 static_cast<double>(random() % 100000000) / 1000.0 + 0.0005,
                 std::ldexp(static_cast<double>(random() % 100000000),
                            -static_cast<int>(random() % 40)),
             }) {
            values.insert(values.end(), {value, -value});
        }
    }
    for (double value : values) {
        ASSERT_EQ(General(value), "<" + Printf("%g", value)) << Printf("%.17g", value);
        ASSERT_EQ(Fixed(value), "<" + Printf("%10.2f", value)) << Printf("%.17g", value);
    }
}

}  // namespace
