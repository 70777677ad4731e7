#include "views/PageDialog.h"

namespace corvex {

RECT RectInParent(HWND child) {
    RECT area{};
    ::GetWindowRect(child, &area);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

INT_PTR DialogResult(HWND page, LONG_PTR result) {
    ::SetWindowLongPtrA(page, DWLP_MSGRESULT, result);
    return TRUE;
}

void PaintPageGround(HWND page) {
    PAINTSTRUCT paint{};
    const HDC dc = ::BeginPaint(page, &paint);
    ::FillRect(dc, &paint.rcPaint, ::GetSysColorBrush(COLOR_BTNFACE));
    ::EndPaint(page, &paint);
}

}  // namespace corvex
