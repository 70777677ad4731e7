#include "controls/analoggauge/KeptDialCurves.h"

#include "controls/analoggauge/AnalogGaugeModel.h"
#include "controls/gauge/LogicalSquare.h"
#include "controls/gauge/MaskBitmap.h"

namespace corvex {

namespace {

// Any two that differ from each other and from black, which the sheet is of.
constexpr COLORREF kLine = RGB(255, 255, 255), kGround = RGB(255, 0, 0);

bool SameEnds(const DialArc& a, const DialArc& b) {
    return a.from.x == b.from.x && a.from.y == b.from.y && a.to.x == b.to.x && a.to.y == b.to.y;
}

bool SameSize(const RECT& a, const RECT& b) {
    return a.right - a.left == b.right - b.left && a.bottom - a.top == b.bottom - b.top;
}

void Fill(HDC dc, const OwnedRegion& shape, COLORREF colour) {
    const OwnedBrush brush(::CreateSolidBrush(colour));
    const int saved = ::SaveDC(dc);
    ::SetMapMode(dc, MM_TEXT);
    ::FillRgn(dc, shape.Get(), brush.Get());
    ::RestoreDC(dc, saved);
}

}  // namespace

void KeptDialCurves::Begin(const RECT& client, bool round) {
    arcs_.erase(arcs_.begin() + static_cast<std::ptrdiff_t>(next_), arcs_.end());
    next_ = 0;
    if (SameSize(client, client_) && round == round_) return;
    client_ = client;
    round_ = round;
    outline_.Reset();
    face_.Reset();
    arcs_.clear();
}

void KeptDialCurves::DrawFace(HDC dc, COLORREF outline, COLORREF face) {
    if (!outline_ || !face_) {
        const MaskBitmap sheet(client_);
        const LogicalSquare square(sheet.Dc(), client_, AnalogGaugeModel::kSide, round_);
        DialCurves::DrawFace(sheet.Dc(), kLine, kGround);
        outline_ = sheet.ShapeOf(kLine);
        face_ = sheet.ShapeOf(kGround);
    }
    if (!outline_ || !face_) return DialCurves::DrawFace(dc, outline, face);
    Fill(dc, face_, face);
    Fill(dc, outline_, outline);
}

void KeptDialCurves::DrawArc(HDC dc, const DialArc& arc, COLORREF colour) {
    if (next_ == arcs_.size()) arcs_.push_back({arc, ShapeOf(arc)});
    KeptArc& kept = arcs_[next_++];
    if (!SameEnds(kept.ends, arc)) kept = {arc, ShapeOf(arc)};
    if (!kept.shape) return DialCurves::DrawArc(dc, arc, colour);
    Fill(dc, kept.shape, colour);
}

OwnedRegion KeptDialCurves::ShapeOf(const DialArc& arc) {
    const MaskBitmap sheet(client_);
    const LogicalSquare square(sheet.Dc(), client_, AnalogGaugeModel::kSide, round_);
    DialCurves::DrawArc(sheet.Dc(), arc, kLine);
    return sheet.ShapeOf(kLine);
}

}  // namespace corvex
