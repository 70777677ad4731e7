#include "views/DoubleBufferedControl.h"

#include "controls/window/OffscreenPaint.h"

namespace corvex {

namespace {

LRESULT Own(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto procedure = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(control, GWLP_USERDATA));
    return ::CallWindowProcW(procedure, control, message, wParam, lParam);
}

void Paint(HWND control) {
    const OffscreenPaint paint(control);
    const auto dc = reinterpret_cast<WPARAM>(paint.Dc());
    // Not left to PRF_ERASEBKGND, which not every version of the common controls heeds.
    Own(control, WM_ERASEBKGND, dc, 0);
    Own(control, WM_PRINTCLIENT, dc, PRF_CLIENT);
}

LRESULT CALLBACK DoubleBufferedProcedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            Paint(control);
            return 0;
        default:
            return Own(control, message, wParam, lParam);
    }
}

}  // namespace

// By the wide calls, as the common controls are wide windows and would be taken for others by the narrow ones.
void MakeDoubleBuffered(HWND control) {
    ::SetWindowLongPtrW(control, GWLP_USERDATA, ::GetWindowLongPtrW(control, GWLP_WNDPROC));
    ::SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DoubleBufferedProcedure));
}

}  // namespace corvex
