#include "base/PathText.h"

#include <optional>

#include "base/Windows1252.h"

namespace {

// The characters of valid UTF-8 (no overlong forms, no surrogates, nothing past U+10FFFF).
std::optional<std::u32string> DecodeUtf8(std::string_view bytes) {
    std::u32string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        int length = 0;
        char32_t c = 0;
        char32_t least = 0;
        if (lead < 0x80) {
            text.push_back(lead);
            ++i;
            continue;
        }
        if ((lead & 0xE0) == 0xC0) {
            length = 2, c = lead & 0x1F, least = 0x80;
        } else if ((lead & 0xF0) == 0xE0) {
            length = 3, c = lead & 0x0F, least = 0x800;
        } else if ((lead & 0xF8) == 0xF0) {
            length = 4, c = lead & 0x07, least = 0x10000;
        } else {
            return std::nullopt;
        }
        if (bytes.size() - i < static_cast<std::size_t>(length)) {
            return std::nullopt;
        }
        for (int k = 1; k < length; ++k) {
            const auto next = static_cast<unsigned char>(bytes[i + k]);
            if ((next & 0xC0) != 0x80) {
                return std::nullopt;
            }
            c = (c << 6) | (next & 0x3F);
        }
        if (c < least || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
            return std::nullopt;
        }
        text.push_back(c);
        i += static_cast<std::size_t>(length);
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
