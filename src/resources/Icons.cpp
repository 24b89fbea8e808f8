// Icon 128, the program's: an order of battle drawn as a chart, a command over three
// formations and a unit, on parchment. Drawn here by hand, one character per pixel.
#include <cstdint>
#include <cstdio>

#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
constexpr const char* kChart[kIconSize] = {
    ".kkkkkkkkkkkkkkkkkkkkkkkkkkkkkk.",  //
    "kkwwwwwwwwwwwwwwwwwwwwwwwwwwwwkk",  //
    "kwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwk",  //
    "kwwwwwwwwwwkkkkkkkkkkwwwwwwwwwwk",  //
    "kwwwwwwwwwwkrrrrrrrrkwwwwwwwwwwk",  //
    "kwwwwwwwwwwkrrggggrrkwwwwwwwwwwk",  //
    "kwwwwwwwwwwkrrrrrrrrkwwwwwwwwwwk",  //
    "kwwwwwwwwwwkrrrrrrrrkwwwwwwwwwwk",  //
    "kwwwwwwwwwwkrrrrrrrrkwwwwwwwwwwk",  //
    "kwwwwwwwwwwkkkkkkkkkkwwwwwwwwwwk",  //
    "kwwwwwwwwwwwwwwkkwwwwwwwwwwwwwwk",  //
    "kwwwwwwwwwwwwwwkkwwwwwwwwwwwwwwk",  //
    "kwwwwwwwwwwwwwwkkwwwwwwwwwwwwwwk",  //
    "kwwwwkkkkkkkkkkkkkkkkkkkkkkwwwwk",  //
    "kwwwwkkkkkkkkkkkkkkkkkkkkkkwwwwk",  //
    "kwwwwkkwwwwwwwwkkwwwwwwwwkkwwwwk",  //
    "kwwwwkkwwwwwwwwkkwwwwwwwwkkwwwwk",  //
    "kwkkkkkkkkwkkkkkkkkkkwkkkkkkkkwk",  //
    "kwkbbbbbbkwkbbbbbbbbkwkbbbbbbkwk",  //
    "kwkbbbbbbkwkbbbbbbbbkwkbbbbbbkwk",  //
    "kwkbbbbbbkwkbbbbbbbbkwkbbbbbbkwk",  //
    "kwkbbbbbbkwkbbbbbbbbkwkbbbbbbkwk",  //
    "kwkkkkkkkkwkkkkkkkkkkwkkkkkkkkwk",  //
    "kwwwwwwwwwwwwwwkkwwwwwwwwwwwwwwk",  //
    "kwwwwwwwwwwwwwwkkwwwwwwwwwwwwwwk",  //
    "kwwwwwwwwwwwwwwkkwwwwwwwwwwwwwwk",  //
    "kwwwwwwwwwwwkkkkkkkkwwwwwwwwwwwk",  //
    "kwwwwwwwwwwwkggggggkwwwwwwwwwwwk",  //
    "kwwwwwwwwwwwkggggggkwwwwwwwwwwwk",  //
    "kwwwwwwwwwwwkkkkkkkkwwwwwwwwwwwk",  //
    "kkwwwwwwwwwwwwwwwwwwwwwwwwwwwwkk",  //
    ".kkkkkkkkkkkkkkkkkkkkkkkkkkkkkk.",
};

std::uint32_t Colour(char c) {
    switch (c) {
        case 'k':
            return 0xFF1B2A3A;  // ink
        case 'w':
            return 0xFFF4EBD0;  // parchment
        case 'r':
            return 0xFFB3262E;  // command red
        case 'b':
            return 0xFF2F5D8C;  // formation blue
        case 'g':
            return 0xFFD9A441;  // gold
        default:
            return 0x00000000;  // transparent
    }
}

CPixelImage MakeChartIcon() {
    CPixelImage icon{kIconSize, kIconSize, {}};
    for (const char* row : kChart) {
        for (int x = 0; x < kIconSize; ++x) {
            icon.pixels.push_back(Colour(row[x]));
        }
    }
    return icon;
}
}  // namespace

const CPixelImage& IconResource(int id) {
    static const CPixelImage chart = MakeChartIcon();
    if (id != IDR_MAINFRAME) {
        MissingResource("icon", id);
    }
    return chart;
}
