#include "model/HtmlText.h"

void AppendEscaped(std::string& out, std::string_view text) {
    for (char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            default:
                out += c;
        }
    }
}

char GradeLetter(int grade) {
    return grade >= 0 && grade <= 6 ? "GFEDCBA"[grade] : '?';
}

char CommandLetter(std::string_view commandType) {
    return commandType.empty() ? '?' : GradeLetter(commandType[0] - '0');
}
