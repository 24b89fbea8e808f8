#include <gtest/gtest.h>

#include "base/Windows1252.h"

// Every byte has a character and back; the high punctuation maps, and what cannot be held is
// refused, leaving the bytes as they were.
TEST(Windows1252, MapsEveryByteAndRefusesWhatItCannotHold) {
    for (int byte = 0; byte < 256; ++byte) {
        const char32_t c = Windows1252ToUnicode(static_cast<unsigned char>(byte));
        EXPECT_EQ(UnicodeToWindows1252(c), byte) << byte;
    }
    EXPECT_EQ(Windows1252ToUnicode(static_cast<unsigned char>(0x80)), U'\u20AC');
    EXPECT_EQ(Windows1252ToUnicode(static_cast<unsigned char>(0x96)), U'\u2013');
    EXPECT_EQ(UnicodeToWindows1252(U'\u0080'), -1);
    EXPECT_EQ(UnicodeToWindows1252(U'\u0100'), -1);
    EXPECT_EQ(UnicodeToWindows1252(U'\U0001F600'), -1);

    std::string bytes = "kept";
    EXPECT_TRUE(UnicodeToWindows1252(U"Gen. Lef\u00E8vre \u2013 \u20AC5", bytes));
    EXPECT_EQ(bytes,
              "Gen. Lef\xE8vre \x96 \x80"
              "5");
    EXPECT_FALSE(UnicodeToWindows1252(U"\u041A\u043E\u0440\u043F\u0443\u0441", bytes));
    EXPECT_EQ(bytes,
              "Gen. Lef\xE8vre \x96 \x80"
              "5");
    EXPECT_EQ(Windows1252ToUnicode(std::string("\x93Z\x94")), U"\u201CZ\u201D");
}
