// The bitmap reader on any file. A picture it takes has the size it claims within the limits,
// and written again as a 32-bit top-down file with its masks in the header it reads back pixel
// for pixel (unless no pixel has alpha, which the reader then makes opaque). The round trip is
// made for pictures of up to 2^18 pixels: a few bytes can claim 64 MiB of pixels, and writing
// and reading those again each time would leave no time for anything else.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "FuzzSupport.h"
#include "base/BmpReader.h"

namespace {

void Put32(std::string& out, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) {
        out += static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

// A 124-byte header, 32 bits per pixel, rows from the top, masks for 0xAARRGGBB words.
std::string Encode(const CPixelImage& image) {
    std::string out = "BM";
    out.reserve(14 + 124 + 4 * image.pixels.size());
    Put32(out, 0);
    Put32(out, 0);
    Put32(out, 14 + 124);
    Put32(out, 124);
    Put32(out, static_cast<std::uint32_t>(image.width));
    Put32(out, static_cast<std::uint32_t>(-image.height));
    Put32(out, 1 | 32 << 16);  // planes, bits per pixel
    Put32(out, 3);             // bit-field masks
    out.append(20, '\0');
    for (std::uint32_t mask : {0xFF0000u, 0xFF00u, 0xFFu, 0xFF000000u}) {
        Put32(out, mask);
    }
    out.append(124 - 56, '\0');
    for (std::uint32_t pixel : image.pixels) {
        Put32(out, pixel);
    }
    return out;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CImageReadResult read =
        DecodeBmp(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!read.Done()) {
        Require(!read.error.empty() && read.image.pixels.empty(), "a refusal without its reason");
        return 0;
    }
    const CPixelImage& image = read.image;
    Require(image.width >= 1 && image.width <= kMaxBmpSide && image.height >= 1 &&
                image.height <= kMaxBmpSide,
            "a side outside the limits");
    Require(image.pixels.size() == static_cast<std::size_t>(image.width) *
                                       static_cast<std::size_t>(image.height) &&
                image.pixels.size() <= kMaxBmpPixels,
            "pixels not width times height, or over the limit");
    if (image.pixels.size() > std::size_t{1} << 18) {
        return 0;
    }
    bool anyAlpha = false;
    for (std::uint32_t pixel : image.pixels) {
        anyAlpha = anyAlpha || pixel >> 24 != 0;
    }
    if (anyAlpha) {
        const CImageReadResult again = DecodeBmp(Encode(image));
        Require(again.Done() && again.image.width == image.width &&
                    again.image.height == image.height && again.image.pixels == image.pixels,
                "the picture written as 32 bits does not read back");
    }
    return 0;
}
