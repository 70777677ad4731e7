#include "controls/textprogress/TextProgressPaint.h"

#include "controls/richstatic/LabelPaint.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

namespace {

void FillPart(HDC dc, const BarPart& part, COLORREF colour) {
    if (part.Empty()) return;
    FillArea(dc, RECT{part.left, part.top, part.right, part.bottom}, colour);
}

void DrawTwoTone(HDC dc, const RECT& area, const TextProgressModel& model, const BarPart& rest) {
    DrawCentred(dc, area, model.label.Text(), model.label.BackColour());
    const OwnedRegion outside(::CreateRectRgn(rest.left, rest.top, rest.right, rest.bottom));
    ::SelectClipRgn(dc, outside.Get());
    DrawCentred(dc, area, model.label.Text(), model.barColour);
    ::SelectClipRgn(dc, nullptr);
}

}  // namespace

void PaintTextProgress(HDC dc, const RECT& area, const TextProgressModel& model) {
    const BarPart rest = model.Rest(area.right, area.bottom);
    FillPart(dc, rest, GroundColour(model.label.BackColour()));
    FillPart(dc, model.Bar(area.right, area.bottom), model.barColour);
    if (model.TwoTone()) {
        DrawTwoTone(dc, area, model, rest);
    } else {
        DrawCentred(dc, area, model.label.Text(), model.label.TextColour());
    }
}

}  // namespace corvex
