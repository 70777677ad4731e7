#include <gtest/gtest.h>

#include "controls/chart3d/SurfaceFigure.h"
#include "tests/controls/chart3d/Chart3DReference.h"

namespace corvex {
namespace {

std::string Show(const std::optional<ChartRange>& range) {
    return range ? std::to_string(std::lround(range->minimum)) + " to " + std::to_string(std::lround(range->maximum))
                 : "none";
}

class DrawnPlotsTest : public ::testing::Test, protected IChart3DLabels {
protected:
    std::string RangeOf(const QZChart3DPlot& plot) const { return Show(RampRangeOf(chart.model, plot)); }
    std::optional<std::string> Selection() { return SelectionText(chart.model, *this); }
    std::optional<std::string> LabelOf(ChartLabelKind kind, const Point3D& point, QZChart3DPlot* plot, int row,
                                       int column) override {
        asked = std::to_string(kind) + " " + std::to_string(std::lround(point.z)) + " " + std::to_string(row) + " " +
                std::to_string(column);
        EXPECT_EQ(plot, chart.model.lastSelected);
        return answer;
    }

    TestChart3D chart;
    std::string asked;
    std::optional<std::string> answer;
};

TEST_F(DrawnPlotsTest, ARampSpansThePlotsFiniteHeightsOrTheChartsRange) {
    const float heights[] = {kNone, 5.0F, -20.0F, kEndless, 30.0F, -kEndless};
    QZChart3DPlot& plot = chart.AddField(2, 3, [&](int row, int column) { return heights[row * 3 + column]; });
    chart.model.space.ranges[kVerticalAxis] = {7.0F, 77.0F};
    EXPECT_EQ(RangeOf(plot), "7 to 77");
    plot.setType(kRampOfPlot);
    EXPECT_EQ(RangeOf(plot), "-20 to 30");
    plot.setType(2);
    EXPECT_EQ(RangeOf(plot), "none");
    QZChart3DPlot& fresh = chart.AddField(4, 4, [](int, int) { return 12.0F; });
    fresh.setType(kRampOfPlot);
    EXPECT_EQ(RangeOf(fresh), "12 to 12");
}

TEST_F(DrawnPlotsTest, ARampHasNoRangeWithoutAFiniteOne) {
    QZChart3DPlot& plot = chart.AddField(2, 2, [](int, int) { return kNone; });
    plot.setType(kRampOfPlot);
    EXPECT_EQ(RangeOf(plot), "none");
    EXPECT_EQ(RangeOf(chart.AddPlot(0, 0)), "0 to 255");
    plot.setType(kRampOfChart);
    for (const ChartRange& range : {ChartRange{kNone, 1.0F}, ChartRange{0.0F, kEndless}}) {
        chart.model.space.ranges[kVerticalAxis] = range;
        EXPECT_EQ(RangeOf(plot), "none");
    }
}

TEST_F(DrawnPlotsTest, OneSurfaceIsFilledAndAllAreWires) {
    QZChart3DPlot &hidden = chart.AddPlot(2, 2), &empty = chart.AddPlot(0, 0), &second = chart.AddPlot(2, 2);
    hidden.setFlags(kPlotHidden, 0);
    using Plots = std::vector<QZChart3DPlot*>;
    EXPECT_EQ(DrawnPlots(chart.model), Plots{&empty}) << "one without points counts as drawn";
    chart.model.style |= kChart3DWireframe;
    EXPECT_EQ(DrawnPlots(chart.model), (Plots{&empty, &second}));
    hidden.clearFlags(kPlotHidden, 0);
    EXPECT_EQ(DrawnPlots(chart.model), (Plots{&hidden, &empty, &second}));
}

TEST_F(DrawnPlotsTest, TheSelectionIsCountedOverAllPlots) {
    QZChart3DPlot &first = chart.AddPlot(2, 2), &second = chart.AddPlot(2, 2);
    EXPECT_EQ(Selection(), std::nullopt);
    first.selectPoint(0, 0, 1, 0);
    EXPECT_EQ(Selection(), "1 Point Selected");
    second.selectPoint(0, 0, 1, 0);
    second.selectPoint(1, 0, 1, 0);
    second.setFlags(kPlotHidden, 0);
    EXPECT_EQ(Selection(), "3 Points Selected");
    EXPECT_EQ(asked, "") << "no plot is known as the last";
    chart.model.style &= ~kChart3DSelectionLabel;
    EXPECT_EQ(Selection(), std::nullopt);
}

TEST_F(DrawnPlotsTest, TheChartsOwnLabelComesFirst) {
    QZChart3DPlot& plot =
        chart.AddField(3, 3, [](int row, int column) { return static_cast<float>(row * 10 + column); });
    chart.model.lastSelected = &plot;
    EXPECT_EQ(Selection(), std::nullopt);
    EXPECT_EQ(asked, "") << "nothing is selected";
    plot.selectPoint(0, 0, 1, 0);
    plot.selectPoint(2, 1, 1, 0);
    EXPECT_EQ(Selection(), "2 Points Selected") << "it was asked, and left it";
    EXPECT_EQ(asked, "8 21 2 1");
    answer = "its own";
    EXPECT_EQ(Selection(), "its own");
}

}  // namespace
}  // namespace corvex
