// A sheet to draw on aside, to see which pixels a figure covers.
#pragma once

#include <cstdint>

#include "controls/window/GdiObjects.h"

namespace corvex {

// Black, and as large as the area. One thread.
class MaskBitmap {
public:
    // Like a context, or like the screen when that is null.
    explicit MaskBitmap(const RECT& area, HDC like = nullptr);

    HDC Dc() const { return dc_.Get(); }
    // All pixels of just this colour, from 0, 0 of the area. Null when there is no sheet: for an area without pixels,
    // for one far larger than any screen, as odd definitions ask for, and for want of memory or of a context.
    OwnedRegion ShapeOf(COLORREF colour) const;

private:
    const int width_, height_;
    std::uint32_t* pixels_ = nullptr;  // the bitmap's
    MemoryDc dc_;
    OwnedBitmap bitmap_;
    SelectGuard selected_;
};

}  // namespace corvex
