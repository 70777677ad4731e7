#include "controls/chart3d/Chart3DPaint.h"

#include "controls/chart/ChartPaint.h"
#include "controls/chart/YUpSpace.h"
#include "controls/chart3d/BoxPaint.h"
#include "controls/chart3d/SurfaceFigure.h"
#include "controls/chart3d/SurfacePaint.h"
#include "controls/gauge/GaugeFont.h"

namespace corvex {

namespace {

constexpr int kReadsDownward = -900;               // tenths of a degree
constexpr int kSubtitleDrop = 2, kTitleDrop = 16;  // pixels below the client's upper edge
constexpr int kLabelRight = 20, kLabelTop = 15;    // pixels inside the client's edges
constexpr int kLabelFrame = 3;                     // pixels around the text

void PaintTitles(HDC dc, const Chart3DModel& chart, const Chart3DFonts& fonts) {
    const YUpSize client{chart.width, chart.height};
    if (chart.Has(kChart3DSubtitle) && !chart.subtitle.empty())
        PaintChartTitle(dc, client, kSubtitleDrop, fonts.subtitle.Get(), chart.colours[kChart3DSubtitleText],
                        chart.subtitle);
    PaintChartTitle(dc, client, kTitleDrop, fonts.title.Get(), chart.colours[kChart3DTitleText], chart.title);
}

// In the client's own space, as systems differ in which way they count the lines of a text in one that is turned over.
void PaintSelectionLabel(HDC dc, const Chart3DModel& chart, const Chart3DFonts& fonts, const std::string& text) {
    const SelectGuard font(dc, fonts.selection.Get());
    const OwnedBrush fill(::CreateSolidBrush(chart.colours[kChart3DSelectionFill]));
    const SelectGuard brush(dc, fill.Get());
    RECT place{};
    std::string copy = text;  // the call is free to write into it
    ::DrawTextExA(dc, copy.data(), static_cast<int>(copy.size()), &place, DT_CALCRECT, nullptr);
    ::OffsetRect(&place, chart.width - kLabelRight - static_cast<int>(place.right), kLabelTop);
    ::Rectangle(dc, place.left - kLabelFrame, place.top - kLabelFrame, place.right + kLabelFrame,
                place.bottom + kLabelFrame);
    ::SetTextColor(dc, chart.colours[kChart3DSelectionText]);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextAlign(dc, TA_TOP | TA_LEFT);
    ::DrawTextExA(dc, copy.data(), static_cast<int>(copy.size()), &place, 0, nullptr);
}

}  // namespace

Chart3DFonts::Chart3DFonts()
    : tick(MakeGaugeFont(12, FW_NORMAL)),
      selection(MakeGaugeFont(14, FW_NORMAL)),
      title(MakeGaugeFont(18, FW_BOLD)),
      subtitle(MakeGaugeFont(12, FW_THIN)),
      floorTitle(MakeGaugeFont(12, FW_SEMIBOLD)),
      verticalTitle(MakeGaugeFont(12, FW_SEMIBOLD, kReadsDownward)) {}

void PaintChart3D(HDC dc, const Chart3DModel& chart, const Chart3DFonts& fonts, IChart3DLabels& labels) {
    PaintChartGround(dc, {chart.width, chart.height}, chart.colours[kChart3DGround]);
    {
        const YUpSpace space(dc, chart.height);
        const Projection projection = chart.Seen();
        // Labels of one axis may come so close that a ground would hide a part of the one before.
        ::SetBkMode(dc, TRANSPARENT);
        PaintBox(dc, chart, projection, fonts);
        for (QZChart3DPlot* const plot : DrawnPlots(chart))
            PaintSurface(dc, chart, *plot, projection);
        PaintTitles(dc, chart, fonts);
    }
    if (const std::optional<std::string> text = SelectionText(chart, labels)) {
        const int saved = ::SaveDC(dc);
        PaintSelectionLabel(dc, chart, fonts, *text);
        ::RestoreDC(dc, saved);
    }
}

}  // namespace corvex
