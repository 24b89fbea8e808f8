// A picture as the bytes of a PNG file: 8-bit RGBA, compressed with deflate's fixed codes. The
// matches it looks for are the ones an icon drawn pixel by pixel is made of: the pixel before
// and the row above.
#pragma once

#include <string>

#include "base/PixelImage.h"

std::string PngBytes(const CPixelImage& image);
