#include "controls/chart/YUpSpace.h"

#include "controls/window/GdiObjects.h"

namespace corvex {

namespace {

UINT AlignmentOf(TextSide side) {
    switch (side) {
        case TextSide::kRight:
            return TA_TOP | TA_LEFT;
        case TextSide::kLeft:
            return TA_TOP | TA_RIGHT;
        case TextSide::kCentred:
            return TA_TOP | TA_CENTER;
    }
    return TA_TOP;
}

}  // namespace

YUpSpace::YUpSpace(HDC dc, int height) : dc_(dc), saved_(::SaveDC(dc)) {
    ::SetMapMode(dc, MM_ANISOTROPIC);
    ::SetWindowExtEx(dc, 1, 1, nullptr);
    ::SetViewportExtEx(dc, 1, -1, nullptr);
    ::SetViewportOrgEx(dc, 0, height, nullptr);
}

YUpSpace::~YUpSpace() {
    ::RestoreDC(dc_, saved_);
}

void DrawYUpText(HDC dc, YUpPoint at, TextSide side, std::string_view text) {
    ::SetTextAlign(dc, AlignmentOf(side));
    ::TextOutA(dc, at.x, at.y, text.data(), static_cast<int>(text.size()));
}

void DrawYUpTextAbove(HDC dc, YUpPoint at, std::string_view text) {
    ::SetTextAlign(dc, TA_BOTTOM | TA_CENTER);
    ::TextOutA(dc, at.x, at.y, text.data(), static_cast<int>(text.size()));
}

YUpSize YUpTextMeasure::Measure(std::string_view text) const {
    const SelectGuard font(dc_, font_);
    SIZE size{};
    ::GetTextExtentPoint32A(dc_, text.data(), static_cast<int>(text.size()), &size);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

}  // namespace corvex
