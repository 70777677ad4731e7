#include "controls/analoggauge/DialCurves.h"

#include "controls/analoggauge/AnalogGaugeModel.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

namespace {

constexpr int kRim = 2;  // from the edge of the square to the dial
constexpr int kFar = AnalogGaugeModel::kSide - kRim;

}  // namespace

void DialCurves::Begin(const RECT&, bool) {}

void DialCurves::DrawFace(HDC dc, COLORREF outline, COLORREF face) {
    const OwnedPen line(::CreatePen(PS_SOLID, 1, outline));
    const OwnedBrush ground(::CreateSolidBrush(face));
    const SelectGuard pen(dc, line.Get()), brush(dc, ground.Get());
    ::Ellipse(dc, kRim, kRim, kFar, kFar);
}

void DialCurves::DrawArc(HDC dc, const DialArc& arc, COLORREF colour) {
    const OwnedPen line(::CreatePen(PS_SOLID, 2, colour));
    const SelectGuard pen(dc, line.Get());
    ::SetArcDirection(dc, AD_COUNTERCLOCKWISE);
    ::Arc(dc, kRim, kRim, kFar, kFar, arc.from.x, arc.from.y, arc.to.x, arc.to.y);
}

}  // namespace corvex
