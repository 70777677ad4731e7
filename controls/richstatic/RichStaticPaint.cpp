#include "controls/richstatic/RichStaticPaint.h"

#include "controls/richstatic/LabelPaint.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

namespace {

void FillWithBorder(HDC dc, const RECT& area, COLORREF ground, COLORREF border) {
    const OwnedBrush brush(::CreateSolidBrush(ground));
    const OwnedPen pen(::CreatePen(PS_SOLID, 1, border));
    const SelectGuard selectedBrush(dc, brush.Get());
    const SelectGuard selectedPen(dc, pen.Get());
    ::Rectangle(dc, area.left, area.top, area.right, area.bottom);
}

}  // namespace

void PaintRichStatic(HDC dc, const RECT& area, const RichStaticModel& model) {
    const COLORREF ground = GroundColour(model.label.BackColour());
    if (model.borderColour == kNoColour) {
        FillArea(dc, area, ground);
    } else {
        FillWithBorder(dc, area, ground, model.borderColour);
    }
    DrawCentred(dc, area, model.label.Text(), model.PaintedTextColour());
}

}  // namespace corvex
