#include "packaging/ImageScale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace {

// How much of each old pixel along one axis the new pixel at index covers, as (old index,
// share) pairs.
std::vector<std::pair<int, double>> Cover(int index, int from, int to) {
    const double begin = static_cast<double>(index) * from / to;
    const double end = static_cast<double>(index + 1) * from / to;
    std::vector<std::pair<int, double>> cover;
    for (int old = static_cast<int>(begin); old < from && old < end; ++old) {
        const double share = std::min(end, old + 1.0) - std::max(begin, static_cast<double>(old));
        if (share > 0) {
            cover.emplace_back(old, share);
        }
    }
    return cover;
}

std::uint32_t Channel(double value, int shift) {
    return static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.0, 255.0))) << shift;
}

}  // namespace

CPixelImage ScaleImage(const CPixelImage& image, int width, int height) {
    CPixelImage scaled{width, height, {}};
    scaled.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        const auto rows = Cover(y, image.height, height);
        for (int x = 0; x < width; ++x) {
            double area = 0;
            double alpha = 0;
            double colour[3] = {};
            for (const auto& [oldY, shareY] : rows) {
                for (const auto& [oldX, shareX] : Cover(x, image.width, width)) {
                    const std::uint32_t argb = image.At(oldX, oldY);
                    const double a = (argb >> 24) * shareX * shareY;
                    area += shareX * shareY;
                    alpha += a;
                    for (int c = 0; c < 3; ++c) {
                        colour[c] += ((argb >> (16 - 8 * c)) & 0xFF) * a;
                    }
                }
            }
            std::uint32_t pixel = Channel(alpha / area, 24);
            for (int c = 0; alpha > 0 && c < 3; ++c) {
                pixel |= Channel(colour[c] / alpha, 16 - 8 * c);
            }
            scaled.pixels.push_back(pixel);
        }
    }
    return scaled;
}
