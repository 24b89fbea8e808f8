// The Windows bitmap files (.bmp) that hold the unit pictures, leader faces and unit icons,
// decoded into 32-bit pixels. Every header the format has had (12, 40, 52, 56, 108 and 124
// bytes), 1, 4, 8, 16, 24 and 32 bits per pixel, rows stored from the bottom or from the top,
// palettes, bit-field masks and the run-length compressions of 4 and 8 bits per pixel.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/PixelImage.h"
#include "base/Result.h"

// What reading a picture gives: the image, or a result other than RESULT_DONE with
// "<path>: <reason>" in error (the reason alone when bytes were decoded, not a file).
struct CImageReadResult {
    int code = RESULT_DONE;
    std::string error;
    CPixelImage image;

    bool Done() const { return code == RESULT_DONE; }
};

// The largest image taken: 64 MiB of 32-bit pixels, far more than any strip of pictures needs,
// checked before anything is allocated.
constexpr std::size_t kMaxBmpPixels = std::size_t{16} * 1024 * 1024;
// The longest side taken; longer sides are damaged headers, not pictures.
constexpr long long kMaxBmpSide = 65536;

// Decodes the bytes of a bitmap file. Never reads outside bytes.
CImageReadResult DecodeBmp(std::string_view bytes);

// Reads the bitmap file at path: RESULT_CANNOT_OPEN when it does not open (or is a folder),
// RESULT_CANNOT_READ when its bytes are no picture this reader takes.
CImageReadResult ReadBmpFile(const std::string& path);
