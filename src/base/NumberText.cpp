#include "base/NumberText.h"

#include <charconv>
#include <cmath>

namespace {

// Room for any double in "%f" form (309 digits before the point) with a precision up to 80,
// and for any "%g" text.
constexpr std::size_t kRoom = 400;

constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

// magnitude * 10^decimals rounded to the nearest whole number, as printf rounds the exact
// binary value, when the product is below 10^12 and not within a thousandth of a tie: then the
// product's own rounding error (below 10^-4) cannot change the result. False otherwise, and the
// caller takes the exact path.
bool CertainScaled(double magnitude, int decimals, unsigned long long& scaled) {
    const double product = magnitude * kPowersOfTen[decimals];
    if (!(product < 1e12)) {
        return false;
    }
    const double whole = std::floor(product);
    const double fraction = product - whole;
    if (std::fabs(fraction - 0.5) < 1e-3) {
        return false;
    }
    scaled = static_cast<unsigned long long>(whole) + (fraction > 0.5 ? 1 : 0);
    return true;
}

struct Split {
    unsigned long long whole;
    unsigned long long fraction;
};

template <unsigned long long kUnit>
Split SplitBy(unsigned long long scaled) {
    return {scaled / kUnit, scaled % kUnit};
}

// scaled / 10^decimals and the remainder, decimals from 0 to 9: by constants, which the compiler
// turns into multiplications, where a division by a variable takes tens of cycles a number.
Split SplitDecimals(unsigned long long scaled, int decimals) {
    static constexpr Split (*kSplits[])(unsigned long long) = {
        SplitBy<1>,         SplitBy<10>,        SplitBy<100>,     SplitBy<1000>,
        SplitBy<10000>,     SplitBy<100000>,    SplitBy<1000000>, SplitBy<10000000>,
        SplitBy<100000000>, SplitBy<1000000000>};
    return kSplits[decimals](scaled);
}

// Writes scaled / 10^decimals with its decimals digits after the point to buffer (32 characters
// are enough) and returns the end; trailing zeros of the fraction (and then the point) dropped
// when trim is set.
char* WriteScaled(char* buffer, bool negative, unsigned long long scaled, int decimals, bool trim) {
    char* end = buffer;
    if (negative) {
        *end++ = '-';
    }
    const auto [whole, remainder] = SplitDecimals(scaled, decimals);
    end = std::to_chars(end, buffer + 32, whole).ptr;
    unsigned long long fraction = remainder;
    int digits = decimals;
    if (trim) {
        while (digits > 0 && fraction % 10 == 0) {
            fraction /= 10;
            --digits;
        }
    }
    if (digits > 0) {
        *end++ = '.';
        for (int i = digits - 1; i >= 0; --i) {
            end[i] = static_cast<char>('0' + fraction % 10);
            fraction /= 10;
        }
        end += digits;
    }
    return end;
}

// Appends the text from buffer to end, after blanks up to width.
void AppendRightAligned(std::string& out, const char* buffer, const char* end, std::size_t width) {
    const auto length = static_cast<std::size_t>(end - buffer);
    if (length < width) {
        out.append(width - length, ' ');
    }
    out.append(buffer, length);
}

// The exact path. std::to_chars with a format and a precision is defined to give what printf
// gives with the matching conversion in the "C" locale, rounding included.
void AppendExact(std::string& out, double value, std::chars_format format, int precision,
                 std::size_t width) {
    char buffer[kRoom];
    const char* end = std::to_chars(buffer, buffer + sizeof buffer, value, format, precision).ptr;
    AppendRightAligned(out, buffer, end, width);
}

}  // namespace

char* WriteGeneral(char* to, double value) {
    // "%g" writes a value from 10^-4 up to 10^6 (after rounding) in "%f" form with six
    // significant digits and no trailing zeros; that is the common case, done here directly.
    const double magnitude = std::fabs(value);
    if (magnitude >= 1e-4 && magnitude < 1e6) {
        int exponent = 5;  // of the leading digit
        while (exponent > -4 && magnitude < kPowersOfTen[exponent + 4] * 1e-4) {
            --exponent;
        }
        unsigned long long scaled = 0;
        // A rounding up to 10^6 significant units would change the exponent: the exact path.
        if (CertainScaled(magnitude, 5 - exponent, scaled) && scaled < 1000000) {
            return WriteScaled(to, std::signbit(value), scaled, 5 - exponent, true);
        }
    }
    // The exact path: to_chars gives what printf gives (see AppendExact); six significant digits
    // and an exponent of at most three digits fit the room.
    return std::to_chars(to, to + kGeneralRoom, value, std::chars_format::general, 6).ptr;
}

void AppendFixed(std::string& out, double value, int precision, std::size_t width) {
    unsigned long long scaled = 0;
    if (precision >= 0 && precision <= 6 && std::isfinite(value) &&
        CertainScaled(std::fabs(value), precision, scaled)) {
        char buffer[32];
        const char* end = WriteScaled(buffer, std::signbit(value), scaled, precision, false);
        AppendRightAligned(out, buffer, end, width);
        return;
    }
    AppendExact(out, value, std::chars_format::fixed, precision, width);
}

void AppendLeftAligned(std::string& out, long long value, std::size_t width) {
    char buffer[24];
    const char* end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    const auto length = static_cast<std::size_t>(end - buffer);
    out.append(buffer, length);
    if (length < width) {
        out.append(width - length, ' ');
    }
}
