// One answer to WM_PAINT, drawn on a bitmap and copied to the window in a single step, so that nothing flickers.
#pragma once

#include <optional>

#include "controls/window/GdiObjects.h"

namespace corvex {

// What a window draws on, kept from one paint to the next and made anew when its size changes. One for each window; on
// its thread.
class OffscreenBitmap {
public:
    // A context on at least this many pixels, of no certain content, like `screen`. Null for want of memory.
    HDC Fit(HDC screen, SIZE due, SIZE client);

private:
    struct Sheet {
        Sheet(HDC screen, SIZE pixels);
        SIZE size;
        MemoryDc dc;
        OwnedBitmap bitmap;
        SelectGuard selected;
    };
    std::optional<Sheet> sheet_;
};

// Begins the paint when it is built and ends it, with the copy, when it goes. On the window's own thread.
class OffscreenPaint {
public:
    // On a bitmap that is made for this paint.
    explicit OffscreenPaint(HWND window) : OffscreenPaint(window, nullptr) {}
    // On the one that the window keeps, and which outlives this. What is set on its context is put back in the end.
    OffscreenPaint(HWND window, OffscreenBitmap& kept) : OffscreenPaint(window, &kept) {}
    ~OffscreenPaint();
    OffscreenPaint(const OffscreenPaint&) = delete;
    OffscreenPaint& operator=(const OffscreenPaint&) = delete;

    // Where to draw. The bitmap is of no certain content: all of it is to be painted. It begins at 0, 0 of the client
    // and ends with what is to be shown, as a client that reaches far beyond its parent has more pixels than memory
    // has.
    HDC Dc() const { return memory_; }
    // The client rectangle, from 0, 0. Empty for a window that shows nothing.
    const RECT& Area() const { return area_; }
    // What is to be shown of it: nothing else reaches the window.
    const RECT& Due() const { return paint_.rcPaint; }

private:
    OffscreenPaint(HWND window, OffscreenBitmap* kept);

    OffscreenBitmap own_;
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC screen_;
    RECT area_{};
    HDC memory_;
    int saved_;
};

}  // namespace corvex
