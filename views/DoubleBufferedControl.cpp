#include "views/DoubleBufferedControl.h"

#include "controls/window/OffscreenPaint.h"
#include "controls/window/WindowSubclass.h"

namespace corvex {

namespace {

class DoubleBuffer final : public WindowSubclass {
public:
    using WindowSubclass::WindowSubclass;

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Paint();
    OffscreenBitmap bitmap_;
};

LRESULT DoubleBuffer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            Paint();
            return 0;
        default:
            return Former(message, wParam, lParam);
    }
}

void DoubleBuffer::Paint() {
    const OffscreenPaint paint(Window(), bitmap_);
    const auto dc = reinterpret_cast<WPARAM>(paint.Dc());
    // Not left to PRF_ERASEBKGND, which not every version of the common controls heeds.
    Former(WM_ERASEBKGND, dc, 0);
    Former(WM_PRINTCLIENT, dc, PRF_CLIENT);
}

}  // namespace

void MakeDoubleBuffered(HWND control) {
    static_cast<void>(Attach(std::make_unique<DoubleBuffer>(control)));
}

}  // namespace corvex
