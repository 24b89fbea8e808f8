#include "base/HtmlText.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "base/Bytes16.h"

namespace {

std::string_view Escape(char c) {
    switch (c) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        default:
            return {};
    }
}

// The first character of [p, end) that Escape changes, or end: sixteen at a time while that many
// are left, then one test each, the escaped ones as bits of a mask of the first 64 codes.
const char* FindEscaped(const char* p, const char* end) {
    const Bytes16 amp = Bytes16{} + static_cast<unsigned char>('&');
    const Bytes16 lt = Bytes16{} + static_cast<unsigned char>('<');
    const Bytes16 gt = Bytes16{} + static_cast<unsigned char>('>');
    for (; end - p >= 16; p += 16) {
        const Bytes16 bytes = Load16(p);
        if (const unsigned marked = BitsOf((bytes == amp) | (bytes == lt) | (bytes == gt))) {
            return p + std::countr_zero(marked);
        }
    }
    constexpr std::uint64_t kEscapedCodes =
        std::uint64_t{1} << '&' | std::uint64_t{1} << '<' | std::uint64_t{1} << '>';
    for (; p != end; ++p) {
        const auto code = static_cast<unsigned char>(*p);
        if (code < 64 && (kEscapedCodes >> code & 1)) {
            return p;
        }
    }
    return end;
}

}  // namespace

char* WriteEscaped(char* to, std::string_view text) {
    // Names seldom hold a character to escape: the text goes in whole runs between them.
    const char* run = text.data();
    const char* const end = run + text.size();
    for (const char* p = FindEscaped(run, end); p != end; p = FindEscaped(run, end)) {
        to = std::copy(run, p, to);
        const std::string_view escaped = Escape(*p);
        to = std::copy(escaped.begin(), escaped.end(), to);
        run = p + 1;
    }
    return std::copy(run, end, to);
}

char GradeLetter(int grade) {
    return grade >= 0 && grade <= 6 ? "GFEDCBA"[grade] : '?';
}

char CommandLetter(std::string_view commandType) {
    return commandType.empty() ? '?' : GradeLetter(commandType[0] - '0');
}
