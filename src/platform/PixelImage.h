// A picture held as 32-bit pixels (0xAARRGGBB, rows from the top): icons, and the cells of the
// bitmap strips that the picture selector shows.
#pragma once

#include <cstdint>
#include <vector>

struct CPixelImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;  // width * height, row-major

    std::uint32_t At(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

// The size the system draws icons at (SM_CXICON, SM_CYICON).
constexpr int kIconSize = 32;
