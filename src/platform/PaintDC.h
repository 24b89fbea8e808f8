// The drawing surface a dialog paints its client area on.
#pragma once

#include "platform/PixelImage.h"

class CPaintDC {
public:
    virtual ~CPaintDC() = default;
    // Copies the width x height block at (srcX, srcY) of image to (x, y), at its natural size.
    virtual void BitBlt(int x, int y, int width, int height, const CPixelImage& image, int srcX,
                        int srcY) = 0;
    // Draws an icon with its top-left corner at (x, y).
    virtual void DrawIcon(int x, int y, const CPixelImage& icon) = 0;
    // Fills the client area with the background behind a minimised window's icon.
    virtual void EraseIconBackground() = 0;
};
