#include <gtest/gtest.h>

#include "base/Windows1252.h"

// Every byte has a character and back; what cannot be held is refused, leaving the bytes.
TEST(Windows1252, MapsEveryByteAndRefusesWhatItCannotHold) {
    for (int byte = 0; byte < 256; ++byte) {
        const char32_t c = Windows1252ToUnicode(static_cast<unsigned char>(byte));
        EXPECT_EQ(UnicodeToWindows1252(c), byte) << byte;
    }
    EXPECT_EQ(Windows1252ToUnicode(std::string("\x80\x93Z\x94")), U"\u20AC\u201CZ\u201D");
    for (char32_t c : {U'\u0080', U'\u0100', U'\U0001F600'}) {
        EXPECT_EQ(UnicodeToWindows1252(c), -1);
    }
    std::string bytes = "kept";
    EXPECT_FALSE(UnicodeToWindows1252(U"\u041A\u043E", bytes));
    EXPECT_EQ(bytes, "kept");
}
