#include "model/NumberText.h"

#include <charconv>

// std::to_chars with a format and a precision is defined to give what printf gives with the
// matching conversion (e, f, g) in the "C" locale, rounding included, and it spends a few
// hundred instructions where printf spends thousands.
namespace {

// Room for any double in "%f" form (309 digits before the point) with a precision up to 80,
// and for any "%g" text.
constexpr std::size_t kRoom = 400;

}  // namespace

void AppendGeneral(std::string& out, double value) {
    // Whole numbers below a million, the men counts, need no digit generation at all: "%g"
    // writes them as "%d" does. -0.0 keeps its sign through the general path.
    if (value > -1e6 && value < 1e6 && value != 0.0) {
        const long long whole = static_cast<long long>(value);
        if (static_cast<double>(whole) == value) {
            char buffer[24];
            const auto end = std::to_chars(buffer, buffer + sizeof buffer, whole).ptr;
            out.append(buffer, end);
            return;
        }
    }
    char buffer[kRoom];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 6).ptr;
    out.append(buffer, end);
}

void AppendFixed(std::string& out, double value, int precision, std::size_t width) {
    char buffer[kRoom];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, precision)
            .ptr;
    const auto length = static_cast<std::size_t>(end - buffer);
    if (length < width) {
        out.append(width - length, ' ');
    }
    out.append(buffer, end);
}

void AppendLeftAligned(std::string& out, long long value, std::size_t width) {
    char buffer[24];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    out.append(buffer, end);
    const auto length = static_cast<std::size_t>(end - buffer);
    if (length < width) {
        out.append(width - length, ' ');
    }
}
