// A picture drawn again at another size, each new pixel the mean of the area of the old ones it
// covers (weighted by their opacity), so an integer enlargement keeps every pixel sharp and a
// reduction keeps one-pixel lines as a shade.
#pragma once

#include "base/PixelImage.h"

CPixelImage ScaleImage(const CPixelImage& image, int width, int height);
