#include "controls/chart3d/BoxPaint.h"

#include "controls/chart/YUpSpace.h"
#include "controls/chart3d/BoxFigure.h"

namespace corvex {

namespace {

constexpr Chart3DColour kLabelColours[] = {kChart3DXLabels, kChart3DDepthLabels, kChart3DVerticalLabels};
constexpr Chart3DColour kTitleColours[] = {kChart3DXTitle, kChart3DDepthTitle, kChart3DVerticalTitle};

class BoxPainter {
public:
    BoxPainter(HDC dc, const Chart3DModel& chart, const Chart3DFonts& fonts) : dc_(dc), chart_(chart), fonts_(fonts) {}

    void PaintFace(const FaceFigure& face) const;
    void PaintTitle(const AxisTitle& title) const;

private:
    void PaintTick(const TickLine& tick) const;

    const HDC dc_;
    const Chart3DModel& chart_;
    const Chart3DFonts& fonts_;
    const YUpTextMeasure measure_{dc_, fonts_.tick.Get()};
    const OwnedPen outline_{::CreatePen(PS_SOLID, 1, chart_.colours[kChart3DBox])};
    const OwnedPen dots_{::CreatePen(PS_DOT, 0, chart_.colours[kChart3DBox])};
};

void BoxPainter::PaintTick(const TickLine& tick) const {
    ::MoveToEx(dc_, tick.from.x, tick.from.y, nullptr);
    ::LineTo(dc_, tick.to.x, tick.to.y);
    if (!tick.label) return;
    ::SetTextColor(dc_, chart_.colours[kLabelColours[tick.axis]]);
    const int rise = measure_.Measure(tick.label->text).height / 2;
    DrawYUpText(dc_, {tick.label->at.x, tick.label->at.y + rise}, tick.label->side, tick.label->text);
}

void BoxPainter::PaintFace(const FaceFigure& face) const {
    if (!face.ticks.empty()) {
        const SelectGuard pen(dc_, dots_.Get());
        const SelectGuard font(dc_, fonts_.tick.Get());
        for (const TickLine& tick : face.ticks)
            PaintTick(tick);
    }
    const SelectGuard pen(dc_, outline_.Get());
    const SelectGuard brush(dc_, ::GetStockObject(NULL_BRUSH));
    POINT corners[4];
    for (std::size_t i = 0; i < std::size(corners); ++i)
        corners[i] = {face.corners[i].x, face.corners[i].y};
    ::Polygon(dc_, corners, static_cast<int>(std::size(corners)));
}

void BoxPainter::PaintTitle(const AxisTitle& title) const {
    const SelectGuard font(dc_, (title.isTurned ? fonts_.verticalTitle : fonts_.floorTitle).Get());
    ::SetTextColor(dc_, chart_.colours[kTitleColours[title.axis]]);
    DrawYUpText(dc_, title.at, title.side, chart_.axisTitles[title.axis]);
}

}  // namespace

void PaintBox(HDC dc, const Chart3DModel& chart, const Projection& projection, const Chart3DFonts& fonts) {
    const BoxPainter painter(dc, chart, fonts);
    const YUpTextMeasure measure(dc, fonts.tick.Get());
    for (const FaceFigure& face : FacesOf(chart, projection, measure))
        painter.PaintFace(face);
    for (const AxisTitle& title : AxisTitlesOf(chart, projection))
        painter.PaintTitle(title);
}

}  // namespace corvex
