#include "controls/window/OffscreenPaint.h"

namespace corvex {

namespace {

RECT ClientOf(HWND window) {
    RECT area{};
    ::GetClientRect(window, &area);
    return area;
}

}  // namespace

OffscreenPaint::OffscreenPaint(HWND window)
    : window_(window),
      screen_(::BeginPaint(window, &paint_)),
      area_(ClientOf(window)),
      memory_(screen_),
      bitmap_(::CreateCompatibleBitmap(screen_, paint_.rcPaint.right, paint_.rcPaint.bottom)),
      selected_(memory_.Get(), bitmap_.Get()) {}

OffscreenPaint::~OffscreenPaint() {
    ::BitBlt(screen_, 0, 0, paint_.rcPaint.right, paint_.rcPaint.bottom, memory_.Get(), 0, 0, SRCCOPY);
    ::EndPaint(window_, &paint_);
}

}  // namespace corvex
