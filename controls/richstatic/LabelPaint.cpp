#include "controls/richstatic/LabelPaint.h"

#include "controls/richstatic/FlashTextModel.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

COLORREF GroundColour(std::uint32_t backColour) {
    return backColour == kNoColour ? ::GetSysColor(COLOR_BTNFACE) : backColour;
}

void FillArea(HDC dc, const RECT& area, COLORREF colour) {
    const OwnedBrush brush(::CreateSolidBrush(colour));
    ::FillRect(dc, &area, brush.Get());
}

void DrawCentred(HDC dc, const RECT& area, const char* text, COLORREF colour) {
    ::SetTextColor(dc, colour);
    ::SetBkMode(dc, TRANSPARENT);
    RECT place = area;
    ::DrawTextA(dc, text, -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

}  // namespace corvex
