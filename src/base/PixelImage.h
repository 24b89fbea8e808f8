// A picture held as 32-bit pixels (0xAARRGGBB, rows from the top): icons, and the bitmap strips
// whose cells the picture selector shows.
#pragma once

#include <cstddef>
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
