#include "views/HistogramSurface.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "definition/ADXHistogram.h"
#include "definition/ADXValue.h"
#include "export/HistogramCells.h"

namespace corvex {

namespace {

constexpr char kHint[] = "Ctrl and drag turns, Shift and drag moves, both zoom";
constexpr float kFirstScale = 0.85F;  // leaves room for titles beside the box
constexpr std::uint32_t kHintColour = 0x787878;
constexpr std::size_t kAxisTitleRoom = 41;
// What a user takes for a picture that still moves.
constexpr std::chrono::milliseconds kLongestWait{100};

struct AxisMessages {
    UINT setCount, setTick, setRange, setTitle;
};
constexpr AxisMessages kAcross{CH3M_SETXTICKCOUNT, CH3M_SETXTICK, CH3M_SETXRANGE, CH3M_SETXTITLE};
constexpr AxisMessages kDeep{CH3M_SETDEPTHTICKCOUNT, CH3M_SETDEPTHTICK, CH3M_SETDEPTHRANGE, CH3M_SETDEPTHTITLE};

// 0 for a division without a key.
float KeyOf(const ADXLookupTable& axis, std::uint32_t index) {
    float key = 0.0F;
    axis.GetEntry(index, &key, nullptr);
    return key;
}

float HeightOf(const ADXHistogram& histogram, int mode, HistogramCell cell) {
    char text[kHistogramTextRoom];
    return static_cast<float>(histogram.GetCellValue(mode, cell.row, cell.col, text, sizeof text));
}

void PutTitle(HWND chart, UINT message, const ADXValue* value) {
    char title[kAxisTitleRoom] = "";
    if (value != nullptr) value->GetTitle(title, sizeof title);
    const std::string text = title;
    ::SendMessageA(chart, message, reinterpret_cast<WPARAM>(text.c_str()), static_cast<LPARAM>(text.size()));
}

// The ticks are the divisions, and the range is that of their keys.
void PutAxis(HWND chart, const AxisMessages& messages, const ADXLookupTable& axis, std::uint32_t divisions) {
    ::SendMessageA(chart, messages.setCount, 0, static_cast<LPARAM>(divisions));
    float lowest = std::numeric_limits<float>::max(), highest = std::numeric_limits<float>::min();
    for (std::uint32_t i = 0; i < divisions; ++i) {
        const float key = KeyOf(axis, i);
        std::string text = AxisKeyText(key);
        Chart3DTick tick{i, key, text.data(), static_cast<std::uint32_t>(text.size())};
        ::SendMessageA(chart, messages.setTick, 0, reinterpret_cast<LPARAM>(&tick));
        lowest = std::min(lowest, key);
        highest = std::max(highest, key);
    }
    ::SendMessageA(chart, messages.setRange, reinterpret_cast<WPARAM>(&lowest), reinterpret_cast<LPARAM>(&highest));
}

std::vector<Point3D> PointsOf(const ADXHistogram& histogram, int mode) {
    std::vector<Point3D> points;
    points.reserve(std::size_t{histogram.GetRows()} * histogram.GetCols());
    for (std::uint32_t row = 0; row < histogram.GetRows(); ++row) {
        for (std::uint32_t col = 0; col < histogram.GetCols(); ++col)
            points.push_back({KeyOf(histogram.XTable(), col), KeyOf(histogram.YTable(), row),
                              HeightOf(histogram, mode, {row, col}), 0});
    }
    return points;
}

}  // namespace

void HistogramSurface::Begin(HWND chart) {
    chart_ = chart;
    float scale = kFirstScale;
    Send(CH3M_SETSCALE, reinterpret_cast<WPARAM>(&scale), FALSE);
    Send(CH3M_SETSTYLE, kChart3DVerticalFollows | kChart3DVerticalTicks | kChart3DSubtitle, FALSE);
    Send(CH3M_SETSUBTITLE, 0, reinterpret_cast<LPARAM>(kHint));
    Send(CH3M_SETCOLOR, kChart3DSubtitleText, kHintColour);
}

void HistogramSurface::ShowAxes(const ADXHistogram& histogram) const {
    PutAxis(chart_, kAcross, histogram.XTable(), histogram.GetCols());
    PutAxis(chart_, kDeep, histogram.YTable(), histogram.GetRows());
    PutTitle(chart_, CH3M_SETXTITLE, histogram.GetX());
    PutTitle(chart_, CH3M_SETDEPTHTITLE, histogram.GetY());
    PutTitle(chart_, CH3M_SETVERTTITLE, histogram.GetZ());
}

void HistogramSurface::ShowNothing() const {
    for (const AxisMessages& axis : {kAcross, kDeep}) {
        Send(axis.setCount, 0, 0);
        PutTitle(chart_, axis.setTitle, nullptr);
    }
    PutTitle(chart_, CH3M_SETVERTTITLE, nullptr);
}

// Nothing is painted before all is in place: the box alone would flash up.
void HistogramSurface::Show(const ADXHistogram* histogram, const std::string& title, int mode) const {
    if (const auto* const former = Plot()) Send(CH3M_DELETEPLOT, reinterpret_cast<WPARAM>(former), FALSE);
    ::SetWindowTextA(chart_, title.c_str());
    ::InvalidateRect(chart_, nullptr, TRUE);
    if (histogram == nullptr) return ShowNothing();
    auto* const plot = reinterpret_cast<IQZChart3DPlot*>(Send(CH3M_ADDPLOT, 0, FALSE));
    if (plot == nullptr) return;
    plot->setFlags(kPlotColourHeight, FALSE);
    plot->clearFlags(kPlotAnyDrag, FALSE);
    plot->setType(kRampOfPlot);
    plot->setGridSize(static_cast<int>(histogram->GetRows()), static_cast<int>(histogram->GetCols()));
    ShowAxes(*histogram);
    plot->setPoints(PointsOf(*histogram, mode).data(), FALSE);
}

void HistogramSurface::ShowCell(const ADXHistogram& histogram, HistogramCell cell, int mode) {
    IQZChart3DPlot* const plot = Plot();
    Point3D point;
    if (plot == nullptr || plot->getPoint(static_cast<int>(cell.row), static_cast<int>(cell.col), &point) == 0) return;
    const bool waits = ::GetUpdateRect(chart_, nullptr, FALSE) != FALSE;
    if (!waits) painted_ = Clock::now();
    point.z = HeightOf(histogram, mode, cell);
    plot->setPoint(static_cast<int>(cell.row), static_cast<int>(cell.col), point, TRUE);
    // Where samples come without a pause there is no moment left for a paint.
    if (waits && Clock::now() - painted_ > kLongestWait) ::UpdateWindow(chart_);
}

}  // namespace corvex
