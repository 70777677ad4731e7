#include "controls/chart2d/Chart2DPaint.h"

#include "controls/chart/ChartPaint.h"
#include "controls/chart/YUpSpace.h"
#include "controls/chart2d/AxisFigure.h"
#include "controls/gauge/GaugeFont.h"

namespace corvex {

namespace {

constexpr int kReadsDownward = 900, kReadsUpward = -900;  // tenths of a degree, clockwise in the y-up space
constexpr int kSubtitleDrop = 2, kTitleDrop = 16;         // pixels below the client's upper edge
constexpr int kXTitleRise = 20, kYTitleInset = 10;        // pixels from the client's edges
constexpr int kPointLabelRise = 7;                        // pixels above the point
constexpr int kThinPen = 1, kThickPen = 2;

void Line(HDC dc, YUpPoint from, YUpPoint to) {
    ::MoveToEx(dc, from.x, from.y, nullptr);
    ::LineTo(dc, to.x, to.y);
}

void PaintTitles(HDC dc, const Chart2DModel& chart, const Chart2DFonts& fonts) {
    const YUpSize client{chart.width, chart.height};
    if (chart.Has(kChart2DSubtitle))
        PaintChartTitle(dc, client, kSubtitleDrop, fonts.subtitle.Get(), chart.colours[kChart2DSubtitleText],
                        chart.subtitle);
    PaintChartTitle(dc, client, kTitleDrop, fonts.title.Get(), chart.colours[kChart2DTitleText], chart.title);
}

void PaintAxisTitles(HDC dc, const Chart2DModel& chart, const Chart2DFonts& fonts) {
    {
        const SelectGuard font(dc, fonts.yTitle.Get());
        ::SetTextColor(dc, chart.colours[kChart2DYTitle]);
        DrawYUpText(dc, {kYTitleInset, chart.height / 2}, TextSide::kCentred, chart.axisTitles[kChart2DY]);
    }
    const SelectGuard font(dc, fonts.xTitle.Get());
    ::SetTextColor(dc, chart.colours[kChart2DXTitle]);
    DrawYUpText(dc, {chart.width / 2, kXTitleRise}, TextSide::kCentred, chart.axisTitles[kChart2DX]);
}

// The pens that both axes have, and what is drawn with them.
class AxisPainter {
public:
    AxisPainter(HDC dc, const Chart2DModel& chart) : dc_(dc), chart_(chart) {}

    AxisFigure PaintTicks(Chart2DAxis axis, HFONT font, Chart2DColour colour) const;
    void PaintLine(const AxisFigure& figure) const;

private:
    const HDC dc_;
    const Chart2DModel& chart_;
    const OwnedPen grid_{::CreatePen(PS_DOT, kThinPen, chart_.colours[kChart2DGrid])};
    const OwnedPen line_{::CreatePen(PS_SOLID, kThinPen, chart_.colours[kChart2DAxisLines])};
    const OwnedBrush head_{::CreateSolidBrush(chart_.colours[kChart2DAxisLines])};
};

AxisFigure AxisPainter::PaintTicks(Chart2DAxis axis, HFONT font, Chart2DColour colour) const {
    AxisFigure figure = AxisFigureOf(chart_, axis, YUpTextMeasure(dc_, font));
    const SelectGuard selected(dc_, font);
    ::SetTextColor(dc_, chart_.colours[colour]);
    const TextSide side = axis == kChart2DX ? TextSide::kRight : TextSide::kLeft;
    for (const AxisTick& tick : figure.ticks) {
        {
            const SelectGuard pen(dc_, grid_.Get());
            Line(dc_, tick.gridFrom, tick.gridTo);
        }
        const SelectGuard pen(dc_, line_.Get());
        Line(dc_, tick.markFrom, tick.markTo);
        if (tick.label) DrawYUpText(dc_, tick.label->at, side, tick.label->text);
    }
    return figure;
}

void AxisPainter::PaintLine(const AxisFigure& figure) const {
    if (!figure.line) return;
    const SelectGuard pen(dc_, line_.Get()), brush(dc_, head_.Get());
    Line(dc_, figure.line->from, figure.line->to);
    for (const auto& [tip, base, otherBase] : figure.line->heads) {
        const POINT corners[] = {{tip.x, tip.y}, {base.x, base.y}, {otherBase.x, otherBase.y}};
        ::Polygon(dc_, corners, static_cast<int>(std::size(corners)));
    }
}

class SeriesPainter {
public:
    SeriesPainter(HDC dc, const Chart2DModel& chart, QZChart2DSeries& series, IChart2DLabels& labels)
        : dc_(dc), chart_(chart), series_(series), labels_(labels) {}

    void Paint() const;

private:
    void PaintMarker(YUpPoint at, bool isSelected) const;
    void PaintLabel(YUpPoint at, int index) const;

    const HDC dc_;
    const Chart2DModel& chart_;
    QZChart2DSeries& series_;
    IChart2DLabels& labels_;
    const QZChart2DSeries::Look& look_ = series_.GetLook();
    const OwnedPen line_{::CreatePen(look_.penStyle, look_.penWidth, look_.line)};
    const OwnedPen thin_{::CreatePen(PS_SOLID, kThinPen, look_.point)};
    const OwnedPen thick_{::CreatePen(PS_SOLID, kThickPen, look_.line)};
    const OwnedBrush ground_{::CreateSolidBrush(chart_.colours[kChart2DGround])};
    const OwnedBrush selected_{::CreateSolidBrush(look_.selected)};
};

void SeriesPainter::PaintMarker(YUpPoint at, bool isSelected) const {
    ::SelectObject(dc_, (isSelected ? thick_ : thin_).Get());
    ::SelectObject(dc_, (isSelected ? selected_ : ground_).Get());
    ::Ellipse(dc_, at.x - look_.radius, at.y - look_.radius, at.x + look_.radius, at.y + look_.radius);
}

void SeriesPainter::PaintLabel(YUpPoint at, int index) const {
    const auto text = labels_.LabelOf(kPointLabel, series_.Points()[static_cast<std::size_t>(index)], &series_, index);
    if (text) DrawYUpTextAbove(dc_, {at.x, at.y + kPointLabelRise}, *text);
}

void SeriesPainter::Paint() const {
    if (series_.Points().empty()) return;
    const Chart2DSpace space = chart_.Seen();
    const SelectGuard pen(dc_, line_.Get()), brush(dc_, ground_.Get());
    const YUpPoint start = space.PlaceOf(series_.Is(kSeriesFromOrigin) ? Point2D{} : series_.Points().front());
    ::MoveToEx(dc_, start.x, start.y, nullptr);
    for (int i = 0; i < series_.getPointCount(); ++i) {
        const Point2D& point = series_.Points()[static_cast<std::size_t>(i)];
        const YUpPoint at = space.PlaceOf(point);
        ::SelectObject(dc_, line_.Get());
        ::LineTo(dc_, at.x, at.y);
        if (!series_.Is(kSeriesNoMarkers)) PaintMarker(at, IsSelected(point));
        PaintLabel(at, i);
    }
}

}  // namespace

Chart2DFonts::Chart2DFonts()
    : xTick(MakeGaugeFont(12, FW_NORMAL, kReadsDownward)),
      yTick(MakeGaugeFont(12, FW_NORMAL)),
      point(MakeGaugeFont(12, FW_SEMIBOLD)),
      title(MakeGaugeFont(22, FW_SEMIBOLD)),
      subtitle(MakeGaugeFont(12, FW_THIN)),
      xTitle(MakeGaugeFont(14, FW_SEMIBOLD)),
      yTitle(MakeGaugeFont(12, FW_SEMIBOLD, kReadsUpward)) {}

void PaintChart2D(HDC dc, const Chart2DModel& chart, const Chart2DFonts& fonts, IChart2DLabels& labels) {
    PaintChartGround(dc, {chart.width, chart.height}, chart.colours[kChart2DGround]);
    const YUpSpace space(dc, chart.height);
    ::SetBkMode(dc, TRANSPARENT);
    PaintTitles(dc, chart, fonts);
    {
        const AxisPainter painter(dc, chart);
        const AxisFigure x = painter.PaintTicks(kChart2DX, fonts.xTick.Get(), kChart2DXLabels);
        const AxisFigure y = painter.PaintTicks(kChart2DY, fonts.yTick.Get(), kChart2DYLabels);
        PaintAxisTitles(dc, chart, fonts);
        painter.PaintLine(x);
        painter.PaintLine(y);
    }
    if (!chart.Seen().HasPlot()) return;
    const SelectGuard font(dc, fonts.point.Get());
    ::SetTextColor(dc, chart.colours[kChart2DPointLabels]);
    for (const auto& series : chart.series) {
        if (!series->Is(kSeriesHidden)) SeriesPainter(dc, chart, *series, labels).Paint();
    }
}

}  // namespace corvex
