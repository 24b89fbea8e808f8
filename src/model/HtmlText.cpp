#include "model/HtmlText.h"

#include <cstdint>

namespace {

const char* Escape(char c) {
    switch (c) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        default:
            return nullptr;
    }
}

}  // namespace

void AppendEscaped(std::string& out, std::string_view text) {
    // Names seldom hold a character to escape: the text goes in whole runs between them.
    const char* run = text.data();
    const char* const end = run + text.size();
    for (const char* p = run; p != end; ++p) {
        // One test per character: the escaped ones as bits of a mask of the first 64 codes.
        constexpr std::uint64_t kEscapedCodes =
            std::uint64_t{1} << '&' | std::uint64_t{1} << '<' | std::uint64_t{1} << '>';
        const auto code = static_cast<unsigned char>(*p);
        if (code >= 64 || !(kEscapedCodes >> code & 1)) {
            continue;
        }
        if (const char* escaped = Escape(*p)) {
            out.append(run, static_cast<std::size_t>(p - run));
            out += escaped;
            run = p + 1;
        }
    }
    out.append(run, static_cast<std::size_t>(end - run));
}

char GradeLetter(int grade) {
    return grade >= 0 && grade <= 6 ? "GFEDCBA"[grade] : '?';
}

char CommandLetter(std::string_view commandType) {
    return commandType.empty() ? '?' : GradeLetter(commandType[0] - '0');
}
