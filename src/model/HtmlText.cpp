#include "model/HtmlText.h"

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
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (const char* escaped = Escape(text[i])) {
            out.append(text.data() + start, i - start);
            out += escaped;
            start = i + 1;
        }
    }
    out.append(text.data() + start, text.size() - start);
}

char GradeLetter(int grade) {
    return grade >= 0 && grade <= 6 ? "GFEDCBA"[grade] : '?';
}

char CommandLetter(std::string_view commandType) {
    return commandType.empty() ? '?' : GradeLetter(commandType[0] - '0');
}
