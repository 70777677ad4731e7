#include "bench/gauges/SurfaceCost.h"

#include <cmath>
#include <cstdio>

#include "bench/desktop/Figures.h"
#include "bench/gauges/PaintBesideBare.h"
#include "controls/chart3d/Chart3D.h"
#include "controls/chart3d/Chart3DPaint.h"
#include "definition/ADXHistogram.h"
#include "tests/controls/window/ShownControl.h"
#include "tests/support/DefinitionTestHelper.h"
#include "views/HistogramSurface.h"

namespace corvex::bench {

namespace {

constexpr int kSurfaceWidth = 1000, kSurfaceHeight = 600;
constexpr std::uint32_t kSizes[] = {16, 64, 256};

// A hill in a plain, of so many divisions each way.
float HeightAt(std::uint32_t row, std::uint32_t column, std::uint32_t divisions) {
    const auto part = [divisions](std::uint32_t i) { return static_cast<float>(i) / static_cast<float>(divisions); };
    return 128.0F * std::sin(3.1F * part(row)) * std::sin(3.1F * part(column));
}

std::vector<Point3D> Hill(std::uint32_t divisions) {
    std::vector<Point3D> points;
    const float step = 255.0F / static_cast<float>(divisions - 1);
    for (std::uint32_t row = 0; row < divisions; ++row) {
        for (std::uint32_t column = 0; column < divisions; ++column)
            points.push_back({static_cast<float>(column) * step, static_cast<float>(row) * step,
                              HeightAt(row, column, divisions), 0});
    }
    return points;
}

class NoOwner final : public IPlot3DOwner {
    void OnPointSet(const QZChart3DPlot&, const Point3D&, const Point3D&) override {}
    void OnPointsSet() override {}
    void PaintSoon() override {}
};

class NoLabels final : public IChart3DLabels {
    std::optional<std::string> LabelOf(ChartLabelKind, const Point3D&, QZChart3DPlot*, int, int) override {
        return std::nullopt;
    }
};

// A chart as the page of the histograms has it.
struct HillChart {
    explicit HillChart(std::uint32_t divisions) {
        chart.width = kSurfaceWidth;
        chart.height = kSurfaceHeight;
        chart.space.boxSize = static_cast<float>(kSurfaceHeight) / std::sqrt(3.0F);
        chart.space.pivot.fill(chart.space.boxSize / 2);
        chart.space.translation = {(kSurfaceWidth - chart.space.boxSize) / 2,
                                   (kSurfaceHeight - chart.space.boxSize) / 2, 0};
        for (TickList& ticks : chart.ticks)
            ticks.Spread(static_cast<int>(divisions), {0, 255}, nullptr);
        chart.plots.push_back(std::make_unique<QZChart3DPlot>(owner));
        QZChart3DPlot& plot = *chart.plots.back();
        plot.setFlags(kPlotColourHeight, 0);
        plot.setType(kRampOfPlot);
        plot.setGridSize(static_cast<int>(divisions), static_cast<int>(divisions));
        plot.setPoints(Hill(divisions).data(), 0);
    }
    NoOwner owner;
    Chart3DModel chart;
};

void PrintPaint(std::uint32_t divisions) {
    const HillChart hill(divisions);
    const Chart3DFonts fonts;
    NoLabels labels;
    const auto paint = [&](HDC dc) { PaintChart3D(dc, hill.chart, fonts, labels); };
    const PaintCost cost = CostOfPaint(kSurfaceWidth, kSurfaceHeight, divisions > 64 ? 15 : 100, paint);
    std::printf("surface of %u by %u: paint %.0f us, bare calls %.0f us, ratio %.2f (wanted: at most 1.2)\n", divisions,
                divisions, cost.painted, cost.bare, cost.painted / cost.bare);
}

void PrintProjection() {
    constexpr std::uint32_t kDivisions = 256;
    const HillChart hill(kDivisions);
    const auto& points = hill.chart.plots.front()->Points();
    std::vector<double> times;
    std::int64_t sum = 0;
    for (int round = 0; round < 50; ++round) {
        times.push_back(Microseconds([&] {
            const Projection projection = hill.chart.Seen();
            for (const Point3D& point : points)
                sum += projection.Project(point).depth;
        }));
    }
    std::printf("projection: %.1f ns a point of %zu (their depths' sum %lld)\n",
                Median(times) * 1000.0 / static_cast<double>(points.size()), points.size(),
                static_cast<long long>(sum / 50));
}

// A histogram with a hill in it, and the chart that shows it.
struct ShownSurface {
    explicit ShownSurface(std::uint32_t divisions) : shown(kChart3DClass, kSurfaceWidth, kSurfaceHeight) {
        shown.Resize(kSurfaceWidth, kSurfaceHeight);
        surface.Begin(shown.Window());
        histogram.SetCols(divisions);
        histogram.SetRows(divisions);
        histogram.SetXMax(255);
        histogram.SetYMax(255);
        const float step = 255.0F / static_cast<float>(divisions - 1);
        for (std::uint32_t i = 0; i < divisions * divisions; ++i)
            histogram.AddPoint(static_cast<float>(i % divisions) * step, static_cast<float>(i / divisions) * step,
                               HeightAt(i / divisions, i % divisions, divisions));
        Show();
    }
    void Show() {
        surface.Show(&histogram, "A hill", ADXHistogram::kLast);
        ::UpdateWindow(shown.Window());
    }
    ShownControl shown;
    HistogramSurface surface;
    ADXHistogram histogram;
};

void PrintChanges(std::uint32_t divisions) {
    ShownSurface hill(divisions);
    std::vector<double> stored, drawn, samples;
    const int rounds = divisions > 64 ? 5 : 50;
    for (int round = 0; round < rounds; ++round) {
        stored.push_back(Microseconds([&] { hill.surface.Show(&hill.histogram, "A hill", ADXHistogram::kLast); }));
        drawn.push_back(Microseconds([&] { ::UpdateWindow(hill.shown.Window()); }));
        hill.histogram.AddPoint(128, 128, static_cast<float>(round));
        samples.push_back(Microseconds([&] {
            hill.surface.ShowCell(hill.histogram, {divisions / 2, divisions / 2}, ADXHistogram::kLast);
            ::UpdateWindow(hill.shown.Window());
        }));
    }
    std::printf("surface of %u by %u: stored anew %.0f us, drawn %.0f us; a sample until it is drawn %.0f us\n",
                divisions, divisions, Median(stored), Median(drawn), Median(samples));
}

// As the mouse does it that turns the box, 60 moves a second: each painted before the next comes.
void PrintDrag(std::uint32_t divisions) {
    constexpr int kMoves = 120;
    constexpr double kMove = 1e6 / 60;
    ShownSurface hill(divisions);
    hill.shown.Send(WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, MAKELPARAM(500, 300));
    std::vector<double> moves;
    int late = 0;
    for (int i = 1; i <= kMoves; ++i) {
        moves.push_back(Microseconds([&] {
            hill.shown.Send(WM_MOUSEMOVE, MK_LBUTTON | MK_CONTROL, MAKELPARAM(500 + i % 60, 300 + i % 7));
            ::UpdateWindow(hill.shown.Window());
        }));
        late += moves.back() > kMove ? 1 : 0;
    }
    hill.shown.Send(WM_LBUTTONUP, 0, MAKELPARAM(500, 300));
    std::printf(
        "surface of %u by %u turned by the mouse: a move %.1f ms (median), %d of %d longer than a 60th of a second\n",
        divisions, divisions, Median(moves) / 1000.0, late, kMoves);
}

}  // namespace

void PrintSurfaceCost() {
    Chart3D::Register(::GetModuleHandleA(nullptr));
    for (const std::uint32_t divisions : kSizes)
        PrintPaint(divisions);
    PrintProjection();
    for (const std::uint32_t divisions : kSizes)
        PrintChanges(divisions);
    PrintDrag(64);
}

}  // namespace corvex::bench
