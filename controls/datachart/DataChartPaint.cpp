#include "controls/datachart/DataChartPaint.h"

#include "controls/gauge/GaugeFont.h"

namespace corvex {

namespace {

constexpr int kTurned = 900;                             // tenths of a degree
constexpr UINT kTextOptions = ETO_OPAQUE | ETO_CLIPPED;  // of a rectangle that is not given

RECT AsRect(const ChartArea& area) {
    return {area.left, area.top, area.right, area.bottom};
}

void DrawLine(HDC dc, const ChartLine& line) {
    ::MoveToEx(dc, line.from.x, line.from.y, nullptr);
    ::LineTo(dc, line.to.x, line.to.y);
}

void DrawText(HDC dc, const ChartText& text, const DataChartFonts& fonts) {
    const SelectGuard font(dc, fonts.Get(text.font));
    ::SetTextAlign(dc, text.isAlignedBelow ? TA_BOTTOM : TA_TOP);
    ::ExtTextOutA(dc, text.place.x, text.place.y, kTextOptions, nullptr, text.text.data(),
                  static_cast<UINT>(text.text.size()), nullptr);
}

void DrawAxis(HDC dc, const AxisFigure& axis, const DataChartFonts& fonts) {
    const OwnedPen line(::CreatePen(PS_SOLID, 1, axis.lineColour));
    const SelectGuard pen(dc, line.Get());
    ::SetTextColor(dc, axis.textColour);
    if (axis.title) DrawText(dc, *axis.title, fonts);
    DrawLine(dc, axis.line);
    for (const ChartTick& tick : axis.ticks) {
        DrawLine(dc, tick.mark);
        DrawText(dc, tick.label, fonts);
    }
    ::SetTextAlign(dc, TA_TOP);
}

void DrawSeries(HDC dc, const DataChartSeries& series) {
    const OwnedPen line(::CreatePen(series.lineType, series.lineWidth, series.colour));
    const SelectGuard pen(dc, line.Get());
    series.Walk([dc](int x, int y, bool isFirst) {
        if (isFirst) {
            ::MoveToEx(dc, x, y, nullptr);
        } else {
            ::LineTo(dc, x, y);
        }
    });
}

// Inverted against what is under it, so that it is seen on every colour.
void DrawMarker(HDC dc, const ChartLine& line) {
    const int former = ::SetROP2(dc, R2_NOT);
    const SelectGuard pen(dc, ::GetStockObject(BLACK_PEN));
    DrawLine(dc, line);
    ::SetROP2(dc, former);
}

}  // namespace

DataChartFonts::DataChartFonts(HDC dc)
    : dc_(dc),
      title_(MakeGaugeFont(14, FW_SEMIBOLD, 0)),
      turned_(MakeGaugeFont(12, FW_NORMAL, kTurned)),
      upright_(MakeGaugeFont(14, FW_NORMAL, 0)),
      label_(MakeGaugeFont(14, FW_NORMAL, 0)) {}

HFONT DataChartFonts::Get(ChartFont font) const {
    switch (font) {
        case ChartFont::kTitle:
            return title_.Get();
        case ChartFont::kAxisTitleTurned:
            return turned_.Get();
        case ChartFont::kAxisTitle:
            return upright_.Get();
        case ChartFont::kLabel:
            return label_.Get();
        case ChartFont::kOfContext:
            break;
    }
    return nullptr;
}

ChartTextSize DataChartFonts::Measure(ChartFont font, std::string_view text) const {
    const SelectGuard selected(dc_, Get(font));
    SIZE size{};
    ::GetTextExtentPoint32A(dc_, text.data(), static_cast<int>(text.size()), &size);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

void PaintChartBackground(HDC dc, const ChartBackground& background, const DataChartModel& model,
                          const DataChartFonts& fonts) {
    const RECT client = AsRect(background.client);
    ::FillRect(dc, &client, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    ::SetBkMode(dc, TRANSPARENT);
    if (background.title) {
        ::SetTextColor(dc, model.colours[kChartTitleColour]);
        DrawText(dc, *background.title, fonts);
    }
    for (const AxisFigure& axis : background.axes)
        DrawAxis(dc, axis, fonts);
    const OwnedPen frame(::CreatePen(PS_SOLID, 1, model.colours[kPlotFrameColour]));
    const OwnedBrush fill(::CreateSolidBrush(model.colours[kPlotFillColour]));
    const SelectGuard pen(dc, frame.Get()), brush(dc, fill.Get());
    ::Rectangle(dc, background.plot.left, background.plot.top, background.plot.right, background.plot.bottom);
}

void PaintChartLines(HDC dc, const DataChartModel& model, const ChartArea& plot) {
    // A plot that its axes leave no room for has no inside, though a region of such edges would have one.
    if (plot.right - plot.left <= 2 || plot.bottom - plot.top <= 2) return;
    ::SetBkMode(dc, TRANSPARENT);
    const OwnedRegion inside(::CreateRectRgn(plot.left + 1, plot.top + 1, plot.right - 1, plot.bottom - 1));
    ::SelectClipRgn(dc, inside.Get());
    for (std::size_t i = 0; i < model.SeriesCount(); ++i)
        DrawSeries(dc, *model.Series(i));
    for (std::size_t i = 0; i < model.AxisCount(); ++i) {
        if (const auto marker = DataChartModel::MarkerOf(*model.Axis(i))) DrawMarker(dc, *marker);
    }
    ::SelectClipRgn(dc, nullptr);
}

}  // namespace corvex
