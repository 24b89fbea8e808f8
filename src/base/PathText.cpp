#include "base/PathText.h"

#include <optional>

#include "base/Windows1252.h"

namespace {

// The characters of valid UTF-8 (no overlong forms, no surrogates, nothing past U+10FFFF).
std::optional<std::u32string> DecodeUtf8(std::string_view bytes) {
    static constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};  // by continuation bytes
    std::u32string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i++]);
        const int more = lead < 0x80   ? 0
                         : lead < 0xC0 ? -1
                         : lead < 0xE0 ? 1
                         : lead < 0xF0 ? 2
                         : lead < 0xF8 ? 3
                                       : -1;
        if (more < 0 || bytes.size() - i < static_cast<std::size_t>(more)) {
            return std::nullopt;
        }
        char32_t c = lead & (0xFF >> (more + (more > 0) + 1));
        for (const std::size_t end = i + static_cast<std::size_t>(more); i < end; ++i) {
            const auto next = static_cast<unsigned char>(bytes[i]);
            if ((next & 0xC0) != 0x80) {
                return std::nullopt;
            }
            c = (c << 6) | (next & 0x3F);
        }
        if (c < kLeast[more] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
            return std::nullopt;
        }
        text.push_back(c);
    }
    return text;
}

void AppendUtf8(std::string& out, char32_t c) {
    if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        c = 0xFFFD;
    }
    if (c < 0x80) {
        out.push_back(static_cast<char>(c));
        return;
    }
    const int length = c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
    static constexpr unsigned char kLead[] = {0, 0, 0xC0, 0xE0, 0xF0};
    out.push_back(static_cast<char>(kLead[length] | (c >> (6 * (length - 1)))));
    for (int k = length - 2; k >= 0; --k) {
        out.push_back(static_cast<char>(0x80 | ((c >> (6 * k)) & 0x3F)));
    }
}

}  // namespace

bool IsValidUtf8(std::string_view bytes) {
    return DecodeUtf8(bytes).has_value();
}

std::u32string PathToUnicode(std::string_view bytes) {
    std::optional<std::u32string> text = DecodeUtf8(bytes);
    return text ? std::move(*text) : Windows1252ToUnicode(bytes);
}

std::string UnicodeToPath(const std::u32string& text, std::string_view original) {
    if (PathToUnicode(original) == text) {
        return std::string(original);
    }
    std::string bytes;
    if (!IsValidUtf8(original) && UnicodeToWindows1252(text, bytes)) {
        return bytes;
    }
    for (char32_t c : text) {
        AppendUtf8(bytes, c);
    }
    return bytes;
}
