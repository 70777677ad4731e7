// One answer to WM_PAINT, drawn on a bitmap and copied to the window in a single step, so that nothing flickers.
#pragma once

#include "controls/window/GdiObjects.h"

namespace corvex {

// Begins the paint when it is built and ends it, with the copy, when it goes. On the window's own thread.
class OffscreenPaint {
public:
    explicit OffscreenPaint(HWND window);
    ~OffscreenPaint();
    OffscreenPaint(const OffscreenPaint&) = delete;
    OffscreenPaint& operator=(const OffscreenPaint&) = delete;

    // Where to draw. The bitmap is of no certain content: all of it is to be painted. It begins at 0, 0 of the client
    // and ends with what is to be shown, as a client that reaches far beyond its parent has more pixels than memory
    // has.
    HDC Dc() const { return memory_.Get(); }
    // The client rectangle, from 0, 0. Empty for a window that shows nothing.
    const RECT& Area() const { return area_; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC screen_;
    RECT area_{};
    MemoryDc memory_;
    OwnedBitmap bitmap_;
    SelectGuard selected_;
};

}  // namespace corvex
