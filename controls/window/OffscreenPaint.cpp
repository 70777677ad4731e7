#include "controls/window/OffscreenPaint.h"

#include <algorithm>

namespace corvex {

namespace {

RECT ClientOf(HWND window) {
    RECT area{};
    ::GetClientRect(window, &area);
    return area;
}

bool Holds(SIZE outer, SIZE inner) {
    return outer.cx >= inner.cx && outer.cy >= inner.cy;
}

// Of what is kept, no more than the client can show.
SIZE Larger(SIZE due, SIZE kept, SIZE client) {
    return {std::max(due.cx, std::min(kept.cx, client.cx)), std::max(due.cy, std::min(kept.cy, client.cy))};
}

}  // namespace

OffscreenBitmap::Sheet::Sheet(HDC screen, SIZE pixels)
    : size(pixels),
      dc(screen),
      bitmap(::CreateCompatibleBitmap(screen, pixels.cx, pixels.cy)),
      selected(dc.Get(), bitmap.Get()) {}

HDC OffscreenBitmap::Fit(HDC screen, SIZE due, SIZE client) {
    const SIZE kept = sheet_ ? sheet_->size : SIZE{};
    if (!sheet_ || !Holds(kept, due) || !Holds(client, kept)) {
        sheet_.reset();  // first, so that there are never two of them
        sheet_.emplace(screen, Larger(due, kept, client));
    }
    return sheet_->selected ? sheet_->dc.Get() : nullptr;
}

OffscreenPaint::OffscreenPaint(HWND window, OffscreenBitmap* kept)
    : window_(window),
      screen_(::BeginPaint(window, &paint_)),
      area_(ClientOf(window)),
      memory_((kept == nullptr ? own_ : *kept)
                  .Fit(screen_, {paint_.rcPaint.right, paint_.rcPaint.bottom}, {area_.right, area_.bottom})),
      saved_(::SaveDC(memory_)) {}

OffscreenPaint::~OffscreenPaint() {
    ::RestoreDC(memory_, saved_);
    ::BitBlt(screen_, 0, 0, paint_.rcPaint.right, paint_.rcPaint.bottom, memory_, 0, 0, SRCCOPY);
    ::EndPaint(window_, &paint_);
}

}  // namespace corvex
