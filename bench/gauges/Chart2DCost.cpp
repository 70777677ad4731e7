#include "bench/gauges/Chart2DCost.h"

#include <cmath>
#include <cstdio>
#include <vector>

#include "bench/desktop/Figures.h"
#include "bench/gauges/PaintBesideBare.h"
#include "controls/chart2d/Chart2D.h"
#include "controls/chart2d/Chart2DPaint.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex::bench {

namespace {

constexpr int kFlatWidth = 1000, kFlatHeight = 600, kFlatRounds = 200;
constexpr int kCurves = 4, kPointsOfCurve = 250;

class NoSeriesOwner final : public ISeries2DOwner {
    void OnPointChanged(const Point2D*, const Point2D*) override {}
    void OnPointsCleared() override {}
    void PaintSoon() override {}
};

class NoSeriesLabels final : public IChart2DLabels {
    std::optional<std::string> LabelOf(ChartLabelKind, const Point2D&, QZChart2DSeries*, int) override {
        return std::nullopt;
    }
};

// One of the waves, every tenth point of it selected.
void FillCurve(IQZChart2DSeries& series, int curve) {
    series.setColor(kSeriesLineColour, RGB(60 * curve, 0, 200 - 60 * curve));
    for (int i = 0; i < kPointsOfCurve; ++i) {
        const float x = 510.0F * static_cast<float>(i) / kPointsOfCurve - 255.0F;
        const float y = 200.0F * std::sin(x / 40.0F + static_cast<float>(curve));
        series.addPoint({x, y, 0, i % 10 == 0 ? kPointSelected : 0});
    }
}

void PrintFlatPaint() {
    NoSeriesOwner owner;
    NoSeriesLabels labels;
    Chart2DModel chart;
    chart.width = kFlatWidth;
    chart.height = kFlatHeight;
    for (int i = 0; i < kCurves; ++i) {
        chart.series.push_back(std::make_unique<QZChart2DSeries>(owner));
        FillCurve(*chart.series.back(), i);
    }
    for (const Chart2DAxis axis : kChart2DAxes)
        chart.ticks[axis].Spread(chart.Seen().Along(axis).Length() / 50 + 1, chart.ranges[axis], nullptr);
    const Chart2DFonts fonts;
    const PaintCost cost =
        CostOfPaint(kFlatWidth, kFlatHeight, kFlatRounds, [&](HDC dc) { PaintChart2D(dc, chart, fonts, labels); });
    std::printf(
        "2-D chart of %d series with %d points: paint %.0f us, bare calls %.0f us, ratio %.2f (wanted: at most 1.2)\n",
        kCurves, kCurves * kPointsOfCurve, cost.painted, cost.bare, cost.painted / cost.bare);
}

// As the mouse does it: each move painted before the next comes.
void PrintFlatDrag() {
    const ShownControl shown(kChart2DClass, kFlatWidth, kFlatHeight);
    shown.Resize(kFlatWidth, kFlatHeight);
    auto* const series = reinterpret_cast<IQZChart2DSeries*>(shown.Send(CH2M_ADDSERIES));
    for (int i = 1; i < kCurves; ++i)
        FillCurve(*reinterpret_cast<IQZChart2DSeries*>(shown.Send(CH2M_ADDSERIES)), i);
    FillCurve(*series, 0);
    const int x = kFlatWidth / 2, y = kFlatHeight / 2;
    series->insertPoint({0.0F, 0.0F}, 0);
    shown.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    std::vector<double> moves;
    for (int i = 1; i <= 120; ++i)
        moves.push_back(Microseconds([&] { shown.Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x + i % 60, y + i % 7)); }));
    shown.Send(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    std::printf("2-D chart of %d series with %d points, one dragged: a move %.1f ms (median)\n", kCurves,
                kCurves * kPointsOfCurve, Median(moves) / 1000.0);
}

}  // namespace

void PrintChart2DCost() {
    Chart2D::Register(::GetModuleHandleA(nullptr));
    PrintFlatPaint();
    PrintFlatDrag();
}

}  // namespace corvex::bench
