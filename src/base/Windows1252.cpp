#include "base/Windows1252.h"

namespace {
// 0x80 to 0x9F; every other byte is the character of the same value.
constexpr char32_t kHigh[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
}  // namespace

char32_t Windows1252ToUnicode(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kHigh[byte - 0x80] : static_cast<char32_t>(byte);
}

int UnicodeToWindows1252(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<int>(c);
    }
    for (int i = 0; i < 32; ++i) {
        if (kHigh[i] == c) {
            return 0x80 + i;
        }
    }
    return -1;
}

std::u32string Windows1252ToUnicode(std::string_view bytes) {
    std::u32string text;
    text.reserve(bytes.size());
    for (char byte : bytes) {
        text.push_back(Windows1252ToUnicode(static_cast<unsigned char>(byte)));
    }
    return text;
}

bool UnicodeToWindows1252(const std::u32string& text, std::string& bytes) {
    std::string converted;
    converted.reserve(text.size());
    for (char32_t c : text) {
        const int byte = UnicodeToWindows1252(c);
        if (byte < 0) {
            return false;
        }
        converted.push_back(static_cast<char>(byte));
    }
    bytes = std::move(converted);
    return true;
}
