// Points, sizes and rectangles in pixels, as the dialogs measure their controls.
#pragma once

struct CPoint {
    int x = 0;
    int y = 0;
    bool operator==(const CPoint&) const = default;
};

struct CSize {
    int cx = 0;
    int cy = 0;
    bool operator==(const CSize&) const = default;
};

struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool operator==(const CRect&) const = default;
};
