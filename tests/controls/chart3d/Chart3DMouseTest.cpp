#include <gtest/gtest.h>

#include <limits>

#include "tests/controls/chart3d/Chart3DHostFake.h"

namespace corvex {
namespace {

constexpr ChartModifiers kControlHeld{true, false}, kShiftHeld{false, true}, kBothHeld{true, true};

Chart3DNote Told(Chart3DCode code, int plot = -1, int row = 0, int column = 0) {
    return {code, plot, row, column};
}

Chart3DNote Chosen(int plot, int row, int column) {
    return {0, plot, row, column};
}

class Chart3DMouseTest : public ::testing::Test {
protected:
    void Down(YUpPoint place, ChartModifiers held = {}) {
        mouse.OnDown(place, held);
        fake.host.notes.clear();
        Repaints();
    }
    // Selects them as a page does.
    void Select(std::vector<std::pair<int, int>> places, std::size_t plot = 0) {
        for (const auto& [row, column] : places)
            fake.Plot(plot).selectPoint(row, column, 1, 0);
    }
    int Repaints() { return std::exchange(fake.host.repaints, 0); }

    FakeChart fake;
    Chart3DHostFake& host = fake.host;
    Chart3DMouse& mouse = fake.machine.mouse;
    Chart3DModel& chart = fake.machine.chart;
    Chart3DSpace& space = chart.space;
};

TEST_F(Chart3DMouseTest, AClickSelectsTheFirstPointWithinTheRadius) {
    EXPECT_EQ(fake.Click({103, 117}), (Chart3DNotes{Told(kPointWasSelected, 0, 1, 1), Told(kDragHasEnded)}));
    EXPECT_EQ(fake.Selected(), Chart3DNotes{Chosen(0, 1, 1)});
    EXPECT_EQ(chart.lastSelected, &fake.Plot());
    EXPECT_EQ(std::pair(fake.Plot().LastRow(), fake.Plot().LastColumn()), std::pair(1, 1));
    for (const YUpPoint& beside : {YUpPoint{96, 120}, {104, 120}, {100, 116}, {100, 124}}) {
        EXPECT_EQ(fake.Click(beside), Chart3DNotes{}) << beside.x << ", " << beside.y;
        EXPECT_EQ(fake.Selected(), Chart3DNotes{});
        Select({{1, 1}});
    }
    fake.Plot().setPointRadius(50);
    EXPECT_EQ(fake.Click({100, 70})[0], Told(kPointWasSelected, 0, 0, 0)) << "rows first, then columns";
    fake.Plot().setPoint(0, 0, {50.0F, 0.0F, std::numeric_limits<float>::quiet_NaN()}, 0);
    EXPECT_EQ(fake.Click({50, 0})[0], Told(kPointWasSelected, 0, 0, 0)) << "stands at the range's minimum";
}

TEST_F(Chart3DMouseTest, AClickOnNothingClearsTheSelectionUnlessControlIsDown) {
    fake.AddPlot(0, 2, 3);
    Select({{0, 0}, {1, 1}});
    Select({{0, 1}}, 1);
    fake.Click({10, 10}, kControlHeld);
    EXPECT_EQ(fake.Selected().size(), 3U);
    Repaints();
    mouse.OnDown({10, 10}, {});
    EXPECT_EQ(fake.Selected(), Chart3DNotes{}) << "of the plot too in which nothing can be picked";
    EXPECT_EQ(Repaints(), 1);
}

TEST_F(Chart3DMouseTest, TheLastPlotTestedDecidesAboutNothingFound) {
    fake.AddPlot(kPlotPick, 1, 1).At(0, 0) = {200.0F, 0.0F, 200.0F};
    EXPECT_EQ(fake.Click({100, 20})[0], Told(kPointWasSelected, 0, 0, 1));
    EXPECT_EQ(fake.Selected(), Chart3DNotes{}) << "though it was told";
    fake.Plot(1).setFlags(kPlotHidden, 0);
    fake.Click({100, 20});
    EXPECT_EQ(fake.Selected(), Chart3DNotes{Chosen(0, 0, 1)}) << "a hidden one is not tested";
    EXPECT_EQ(fake.Click({200, 200}), Chart3DNotes{});
    fake.Plot(1).clearFlags(kPlotHidden | kPlotPick, 0);
    fake.Click({100, 20});
    EXPECT_EQ(fake.Selected(), Chart3DNotes{Chosen(0, 0, 1)}) << "nor one without a flag to be picked in";
}

TEST_F(Chart3DMouseTest, ControlTurnsUpToTheVertical) {
    mouse.OnMove({0, 0});
    EXPECT_EQ(space.rotation, Vector3D{}) << "without the button";
    Down({0, 0}, kControlHeld);
    mouse.OnMove({10, 20});
    EXPECT_EQ(space.rotation, (Vector3D{20 * -0.01F, 10 * 0.01F, 0.0F}));
    EXPECT_EQ(Repaints(), 1);
    mouse.OnMove({10, -1000});
    EXPECT_EQ(space.rotation[0], 1.57F);
    mouse.OnMove({10, 1000});
    EXPECT_EQ(space.rotation[0], -1.57F);
    mouse.OnMove({10, 1000});
    EXPECT_EQ(Repaints(), 2) << "not for a move that is none";
    chart.held = {};
    mouse.OnMove({20, 900});
    EXPECT_EQ(space.rotation[0], -1.57F);
}

TEST_F(Chart3DMouseTest, ShiftTakesTheBoxAlongAndItStaysThere) {
    fake.machine.OnSize(400, 300);
    EXPECT_FLOAT_EQ(space.boxSize, 173.20508F);
    EXPECT_FLOAT_EQ(space.translation[0], (400.0F - 173.20508F) / 2.0F);
    EXPECT_FLOAT_EQ(space.translation[1], (300.0F - 173.20508F) / 2.0F);
    fake.Press(Chart3DKey::kShift);
    fake.Press(Chart3DKey::kLeft);
    fake.machine.OnSize(300, 300);
    EXPECT_FLOAT_EQ(space.translation[0], space.translation[1]) << "the keys do not keep it";
    space.translation = {};
    Down({0, 0}, kShiftHeld);
    mouse.OnMove({10, 20});
    EXPECT_EQ(space.translation, (Vector3D{10 * 0.45F, 20 * 0.45F, 0.0F}));
    EXPECT_EQ(Repaints(), 1);
    fake.machine.OnSize(600, 600);
    fake.machine.SetBoxSize(100.0F);
    EXPECT_EQ(space.translation, (Vector3D{10 * 0.45F, 20 * 0.45F, 0.0F}));
    EXPECT_EQ(space.pivot, (Vector3D{50.0F, 50.0F, 50.0F}));
}

TEST_F(Chart3DMouseTest, BothScaleDownToATwentieth) {
    space.scale = {1.0F, 2.0F, 3.0F};
    Down({0, 0}, kBothHeld);
    mouse.OnMove({10, 20});
    EXPECT_EQ(space.scale, (Vector3D{1.2F, 1.2F, 1.2F}));
    EXPECT_EQ(Repaints(), 1);
    mouse.OnMove({10, -200});
    EXPECT_EQ(space.scale, (Vector3D{0.05F, 0.05F, 0.05F}));
    space.scale[0] = std::numeric_limits<float>::quiet_NaN();
    mouse.OnMove({10, -100});
    EXPECT_EQ(space.scale[2], 0.05F);
}

TEST_F(Chart3DMouseTest, ADragMovesTheGroupAndTellsOfEachPoint) {
    Select({{0, 0}, {1, 2}});
    Down({50, 20});
    mouse.OnMove({70, 30});
    EXPECT_EQ(host.TakeNotes(), (Chart3DNotes{Told(kPointWasMoved, 0, 0, 0), Told(kPointWasMoved, 0, 1, 2)}));
    EXPECT_EQ(fake.Plot().At(0, 0).z, 30.0F);
    EXPECT_EQ(fake.Plot().At(1, 2).z, 130.0F);
    EXPECT_EQ(fake.Plot().At(0, 0).x, 50.0F);
    EXPECT_EQ(fake.Plot().At(0, 1).z, 20.0F);
    EXPECT_EQ(Repaints(), 1);
    space.ranges[kVerticalAxis] = {0.0F, 510.0F};
    mouse.OnMove({70, 31});
    EXPECT_EQ(fake.Plot().At(0, 0).z, 32.0F) << "so many pixels of the box are so much of the span";
    mouse.EndGesture();
    EXPECT_EQ(host.TakeNotes().back(), Told(kDragHasEnded));
    mouse.OnMove({70, 99});
    EXPECT_EQ(fake.Plot().At(0, 0).z, 32.0F);
}

TEST_F(Chart3DMouseTest, ADragStopsAllOfAPlotAtALimit) {
    fake.AddPlot(kPlotDragHeight | kPlotBand, 2, 3);
    Select({{0, 0}, {1, 2}});
    Select({{0, 1}}, 1);
    Down({50, 20}, {});
    Select({{0, 1}}, 1);
    mouse.limits[kVerticalAxis] = {10.0F, 200.0F};
    mouse.limits[kXAxis] = {0.0F, 1.0F};
    mouse.OnMove({50, 220});
    EXPECT_EQ(fake.Plot().At(1, 2).z, 200.0F);
    EXPECT_EQ(fake.Plot().At(0, 0).z, 100.0F) << "keeps its distance";
    EXPECT_EQ(fake.Plot(1).At(0, 1).z, 200.0F) << "a plot by itself";
    mouse.OnMove({50, 20});
    EXPECT_EQ(fake.Plot().At(0, 0).z, 10.0F);
    EXPECT_EQ(fake.Plot().At(1, 2).z, 110.0F);
    EXPECT_EQ(fake.Plot().At(0, 0).x, 50.0F) << "nothing moves across";
}

TEST_F(Chart3DMouseTest, WhereTheSpanOrTheBoxIsNothingADragMovesNothing) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    Down({50, 20});
    for (const auto& [maximum, box] : {std::pair(0.0F, 255.0F), {255.0F, 0.0F}, {kInfinity, 255.0F}}) {
        space.ranges[kVerticalAxis].maximum = maximum;
        space.boxSize = box;
        mouse.OnMove({50, 30});
        mouse.OnMove({50, 20});
        mouse.OnMove({60, 20});
        EXPECT_EQ(fake.Plot().At(0, 0).z, 20.0F);
    }
}

TEST_F(Chart3DMouseTest, TheBandSelectsWhatIsInItWithoutAWord) {
    fake.AddPlot(kPlotBand | kPlotHidden, 2, 3);
    fake.AddPlot(kPlotPick, 1, 3);
    fake.AddPlot(0, 1, 3);
    Down({160, 140});
    EXPECT_FALSE(chart.band);
    mouse.OnMove({100, 20});
    EXPECT_EQ(fake.Selected(), (Chart3DNotes{Chosen(0, 0, 1), Chosen(0, 0, 2), Chosen(0, 1, 1), Chosen(0, 1, 2),
                                             Chosen(2, 0, 1), Chosen(2, 0, 2)}))
        << "the border too";
    EXPECT_EQ(fake.Plot().getSelectedCount(), 4);
    EXPECT_EQ(chart.lastSelected, &fake.Plot(2));
    EXPECT_EQ(fake.Plot().LastRow() * 10 + fake.Plot().LastColumn(), 12);
    ASSERT_TRUE(chart.band);
    EXPECT_EQ(chart.band->corner, (YUpPoint{160, 140}));
    EXPECT_EQ(chart.band->opposite, (YUpPoint{100, 20}));
    mouse.OnMove({101, 100});
    EXPECT_EQ(fake.Selected(), Chart3DNotes{Chosen(0, 1, 2)});
    EXPECT_EQ(Repaints(), 2);
    EXPECT_EQ(host.pointer, 0) << "stays on show";
    mouse.EndGesture();
    EXPECT_FALSE(chart.band);
    EXPECT_EQ(Repaints(), 1);
    EXPECT_EQ(host.TakeNotes(), Chart3DNotes{});
}

TEST_F(Chart3DMouseTest, ThePointerIsHiddenFromTheFirstMoveToTheEnd) {
    for (const ChartModifiers held : {kControlHeld, kShiftHeld, kBothHeld, ChartModifiers{}}) {
        Down({50, 20}, held);
        EXPECT_TRUE(host.hasCapture);
        EXPECT_EQ(host.pointer, 0);
        mouse.OnMove({51, 20});
        mouse.OnMove({50, 20});
        EXPECT_EQ(host.pointer, -1);
        mouse.EndGesture();
        mouse.EndGesture();
        EXPECT_EQ(host.pointer, 0);
        EXPECT_FALSE(host.hasCapture);
    }
}

TEST_F(Chart3DMouseTest, AParentThatEndsTheGestureWhenItIsToldOfAPointHasItEnded) {
    fake.AddPlot(kPlotBand, 2, 3);
    host.handler = [&] { mouse.EndGesture(); };
    mouse.OnDown({50, 20}, {});
    EXPECT_EQ(host.TakeNotes(), (Chart3DNotes{Told(kPointWasSelected, 0, 0, 0), Told(kDragHasEnded)}));
    host.handler = nullptr;
    mouse.OnMove({90, 90});
    EXPECT_FALSE(chart.band);
    mouse.EndGesture();
    EXPECT_EQ(host.TakeNotes(), Chart3DNotes{});
}

TEST_F(Chart3DMouseTest, AParentMayTakeThePlotAwayWhileItsPointsAreMoved) {
    fake.AddPlot(kPlotDragHeight | kPlotBand, 2, 3);
    Select({{0, 0}, {1, 2}});
    Down({50, 20});
    Select({{0, 0}, {1, 2}}, 1);
    host.handler = [&] {
        host.handler = nullptr;
        fake.machine.DeletePlot(&fake.Plot(), false);
    };
    mouse.OnMove({50, 30});
    EXPECT_EQ(host.TakeNotes(), Chart3DNotes{Told(kPointWasMoved, 0, 0, 0)});
    EXPECT_EQ(fake.Plot().At(1, 2).z, 120.0F) << "of the plot that has come to its place";
    host.handler = [&] {
        host.handler = nullptr;
        fake.machine.AddPlot(0, false);
    };
    mouse.OnMove({50, 20});
    EXPECT_EQ(host.TakeNotes(), Chart3DNotes{Told(kPointWasMoved, 0, 0, 0)});
    fake.machine.DeletePlot(&fake.Plot(), false);
    host.handler = [&] { fake.Plot().setGridSize(0, 3); };
    mouse.OnMove({50, 40});
    EXPECT_EQ(host.TakeNotes(), Chart3DNotes{Told(kPointWasMoved, 0, 0, 0)});
}

}  // namespace
}  // namespace corvex
