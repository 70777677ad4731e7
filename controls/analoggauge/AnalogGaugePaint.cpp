#include "controls/analoggauge/AnalogGaugePaint.h"

#include <string_view>

#include "controls/gauge/GaugeFont.h"
#include "controls/gauge/LogicalSquare.h"

namespace corvex {

namespace {

constexpr int kSide = AnalogGaugeModel::kSide, kRadius = kSide / 2;
constexpr DialPoint kCentre{kSide / 2, kSide / 2};
constexpr COLORREF kRimMark = 0x0000FF;

// Paints one dial, from the ground up. Lives for one paint.
class DialPainter {
public:
    DialPainter(HDC dc, const AnalogGaugeModel& model, DialCurves& curves)
        : dc_(dc), model_(model), curves_(curves), angle_(static_cast<double>(AngleOf(model.Value()))) {}

    void Paint(const RECT& client) const {
        FillGround(client);
        DrawFace();
        DrawTexts();
        DrawMarkers();
        DrawScale();
        DrawArcs();
        DrawNeedle();
        DrawHub();
        DrawRimMark();
    }

private:
    void FillGround(const RECT& client) const;
    void DrawFace() const;
    void DrawTexts() const;
    void DrawMarkers() const;
    void DrawScale() const;
    void DrawArcs() const;
    void DrawNeedle() const;
    void DrawHub() const;
    void DrawRimMark() const;

    OwnedPen MakePen(int width, COLORREF colour) const { return OwnedPen(::CreatePen(PS_SOLID, width, colour)); }
    void Select(COLORREF colour, UINT alignment) const {
        ::SetTextColor(dc_, colour);
        ::SetTextAlign(dc_, alignment);
    }
    void DrawAt(int x, int y, std::string_view text) const {
        if (!text.empty()) ::TextOutA(dc_, x, y, text.data(), static_cast<int>(text.size()));
    }
    void DrawRadial(int fromRadius, int toRadius, double angle) const;
    void DrawArc(float high, float low, COLORREF colour) const;
    float AngleOf(float value) const { return DialAngle(model_.scale, value); }

    HDC dc_;
    const AnalogGaugeModel& model_;
    DialCurves& curves_;
    double angle_;  // of the needle
};

void DialPainter::FillGround(const RECT& client) const {
    const OwnedBrush ground(::CreateSolidBrush(model_.Colour(AGC_BACKGROUND)));
    ::FillRect(dc_, &client, ground.Get());
}

void DialPainter::DrawFace() const {
    curves_.DrawFace(dc_, model_.Colour(AGC_OUTLINE), model_.Colour(AGC_FACE));
}

void DialPainter::DrawTexts() const {
    const OwnedFont titleFont = MakeGaugeFont(12), smallFont = MakeGaugeFont(10);
    if (model_.title.Present()) {
        const SelectGuard font(dc_, titleFont.Get());
        Select(model_.Colour(AGC_TITLE), TA_CENTER | TA_BOTTOM);
        DrawAt(kSide / 2, kSide * 2 / 5, model_.title.Drawn());
    }
    const SelectGuard font(dc_, smallFont.Get());
    if (model_.Shows(AGF_VALUE)) {
        Select(model_.Colour(AGC_VALUE), TA_CENTER | TA_TOP);
        DrawAt(kSide / 2, kSide * 3 / 4, model_.Number(model_.Value()));
    }
    if (model_.units.Present()) {
        Select(model_.Colour(AGC_UNITS), TA_CENTER | TA_TOP);
        DrawAt(kSide / 2, kSide * 4 / 5, model_.units.Drawn());
    }
}

void DialPainter::DrawMarkers() const {
    const OwnedFont markerFont = MakeGaugeFont(7);
    const SelectGuard font(dc_, markerFont.Get());
    if (model_.Shows(AGF_LOWEST)) {
        Select(model_.lowestColour, TA_CENTER | TA_TOP);
        DrawAt(kSide * 9 / 24, kSide * 2 / 3, model_.LowestLine());
    }
    if (model_.Shows(AGF_HIGHEST)) {
        Select(model_.highestColour, TA_CENTER | TA_TOP);
        DrawAt(kSide * 15 / 24, kSide * 2 / 3, model_.HighestLine());
    }
}

void DialPainter::DrawScale() const {
    const OwnedPen majorPen = MakePen(1, model_.Colour(AGC_MAJORTICK));
    const OwnedPen minorPen = MakePen(1, model_.Colour(AGC_MINORTICK));
    const OwnedFont labelFont = MakeGaugeFont(9);
    const SelectGuard font(dc_, labelFont.Get());
    for (const DialTick& tick :
         DialTicks(model_.scale, AnalogGaugeModel::kMajorTicks, AnalogGaugeModel::kMinorDivisions)) {
        const double angle = static_cast<double>(AngleOf(tick.value));
        const SelectGuard pen(dc_, tick.major ? majorPen.Get() : minorPen.Get());
        DrawRadial(kRadius - 3, kRadius - (tick.major ? 11 : 8), angle);
        if (!tick.major) continue;
        const DialPoint anchor = PlainPoint(kCentre, kRadius - 14, angle);
        Select(model_.Colour(AGC_TICKLABEL), LabelAlignment(angle));
        DrawAt(anchor.x, anchor.y, model_.Number(tick.value));
    }
}

void DialPainter::DrawArcs() const {
    DrawArc(model_.scale.rangeMaximum, model_.scale.rangeMinimum, model_.Colour(AGC_OUTLINE));
    if (!model_.Shows(AGF_ALARMS)) return;
    for (const GaugeAlarmBand& band : model_.Alarms())
        DrawArc(band.high, band.low, band.colour);
}

void DialPainter::DrawNeedle() const {
    const OwnedPen outline = MakePen(1, model_.Colour(AGC_NEEDLE));
    const SelectGuard pen(dc_, outline.Get()), brush(dc_, ::GetStockObject(WHITE_BRUSH));
    POINT corners[3];
    const double angles[] = {angle_, angle_ - 90.0, angle_ + 90.0};
    for (int i = 0; i < 3; ++i) {
        const DialPoint corner = PlainPoint(kCentre, i == 0 ? kRadius - 15 : 2, angles[i]);
        corners[i] = {corner.x, corner.y};
    }
    ::Polygon(dc_, corners, 3);
}

void DialPainter::DrawHub() const {
    const SelectGuard pen(dc_, ::GetStockObject(BLACK_PEN)), brush(dc_, ::GetStockObject(BLACK_BRUSH));
    ::Ellipse(dc_, kCentre.x - 2, kCentre.y - 2, kCentre.x + 2, kCentre.y + 2);
}

void DialPainter::DrawRimMark() const {
    const OwnedPen mark = MakePen(2, kRimMark);
    const SelectGuard pen(dc_, mark.Get());
    DrawRadial(kRadius - 2, kRadius - 6, angle_);
}

void DialPainter::DrawRadial(int fromRadius, int toRadius, double angle) const {
    const DialLine line = RadialLine(kCentre, fromRadius, toRadius, angle);
    ::MoveToEx(dc_, line.from.x, line.from.y, nullptr);
    ::LineTo(dc_, line.to.x, line.to.y);
}

// From the high end to the low one, as arcs go against the clock.
void DialPainter::DrawArc(float high, float low, COLORREF colour) const {
    const DialPoint from = PlainPoint(kCentre, kSide - 1, static_cast<double>(AngleOf(high)));
    const DialPoint to = PlainPoint(kCentre, kSide - 1, static_cast<double>(AngleOf(low)));
    curves_.DrawArc(dc_, {from, to}, colour);
}

}  // namespace

void PaintAnalogGauge(HDC dc, const RECT& client, const AnalogGaugeModel& model) {
    DialCurves drawn;
    PaintAnalogGauge(dc, client, model, drawn);
}

void PaintAnalogGauge(HDC dc, const RECT& client, const AnalogGaugeModel& model, DialCurves& curves) {
    const bool round = model.Shows(AGF_ROUND);
    const LogicalSquare square(dc, client, kSide, round);
    ::SetBkMode(dc, TRANSPARENT);
    curves.Begin(client, round);
    DialPainter(dc, model, curves).Paint(client);
}

}  // namespace corvex
