#include <gtest/gtest.h>

#include <limits>

#include "tests/controls/chart2d/Chart2DHostFake.h"

namespace corvex {
namespace {

constexpr ChartModifiers kWithControl{true, false}, kWithShift{false, true};
constexpr auto At = &FakeChart2D::At;

Chart2DNote Heard(std::uint32_t code, int series = -1, int index = 0) {
    return {code, series, index};
}
Chart2DNote Chosen(int series, int index) {
    return {0, series, index};
}

class Chart2DMouseTest : public ::testing::Test {
protected:
    void Down(YUpPoint place, ChartModifiers held = {}) {
        mouse.OnDown(place, held);
        host.notes.clear();
        Repaints();
    }
    void Select(std::vector<Chart2DNote> points) {
        for (const Chart2DNote& point : points)
            fake.Series(static_cast<std::size_t>(point.series))
                .selectPoint(static_cast<std::uint32_t>(point.index), 1, 0);
    }
    std::pair<float, float> Place(int index, std::size_t series = 0) {
        const Point2D& point = fake.Series(series).Points()[static_cast<std::size_t>(index)];
        return {point.x, point.y};
    }
    int Repaints() { return std::exchange(host.repaints, 0); }

    FakeChart2D fake;
    Chart2DHostFake& host = fake.host;
    Chart2DMouse& mouse = fake.machine.mouse;
    Chart2DModel& chart = fake.machine.chart;
};

TEST_F(Chart2DMouseTest, AClickSelectsTheFirstPointWithinTheRadiusOfAnySeries) {
    EXPECT_EQ(fake.Click(At(-95, -105)), (Chart2DNotes{Heard(kChart2DPointSelected, 0, 0), Heard(kChart2DDragEnded)}));
    EXPECT_EQ(fake.Selected(), Chart2DNotes{Chosen(0, 0)});
    EXPECT_EQ(chart.picked.series, &fake.Series());
    for (const YUpPoint& beside : {At(-94, -100), At(-106, -100), At(-100, -94), At(-100, -106)}) {
        Repaints();
        EXPECT_EQ(fake.Click(beside), Chart2DNotes{}) << beside.x << ", " << beside.y;
        EXPECT_EQ(fake.Selected(), Chart2DNotes{});
        EXPECT_EQ(Repaints(), 2) << "the second of the band";
        Select({Chosen(0, 0)});
    }
    fake.AddSeries(kSeriesPick, {{7, 7}, {0, 0}}).setPointRadius(120);
    EXPECT_EQ(fake.Click(At(0, 0))[0], Heard(kChart2DPointSelected, 0, 1)) << "of the first series";
    EXPECT_EQ(fake.Click(At(0, 30)), Chart2DNotes{Heard(kChart2DPointSelected, 1, 0)}) << "which nobody can drag";
    EXPECT_EQ(fake.Selected(), Chart2DNotes{Chosen(1, 0)});
    for (const std::uint32_t flags : {0x8FU, 0x03U}) {
        fake.Series(0).setFlags(0, 0);
        fake.Series(0).setFlags(flags, 0);
        EXPECT_EQ(fake.Click(At(0, 0))[0], Heard(kChart2DPointSelected, 1, 0)) << "hidden, or not to be picked";
    }
    fake.machine.OnSize(140, 650);
    EXPECT_EQ(fake.Click({70, 70}), Chart2DNotes{}) << "no plot";
}

// Two series of points in a row, some of which are selected: then a press on one.
TEST_F(Chart2DMouseTest, APressOnOneOfSeveralKeepsThemAndOneElsewhereDoesNot) {
    fake.AddSeries(kSeriesBand, {{-100, 0}, {100, 0}});
    const struct {
        std::uint32_t flags;
        Chart2DNotes selected;
        Chart2DNote pressed;
        bool control;
        Chart2DNotes left;
        bool isTold;
    } cases[] = {
        {0x0B, {Chosen(0, 0), Chosen(0, 1)}, Chosen(0, 0), false, {Chosen(0, 0), Chosen(0, 1)}, false},
        {0x0B, {Chosen(0, 0), Chosen(1, 1)}, Chosen(0, 0), false, {Chosen(0, 0), Chosen(1, 1)}, false},
        {0x0B, {Chosen(0, 0), Chosen(1, 1)}, Chosen(0, 2), false, {Chosen(0, 2)}, true},
        {0x0B, {Chosen(0, 0)}, Chosen(0, 0), false, {Chosen(0, 0)}, true},
        {0x0B, {Chosen(1, 0)}, Chosen(0, 0), false, {Chosen(0, 0)}, true},
        {0x0B, {Chosen(0, 0), Chosen(0, 1)}, Chosen(0, 0), true, {Chosen(0, 1)}, false},
        {0x0B, {Chosen(0, 0), Chosen(1, 1)}, Chosen(0, 0), true, {Chosen(1, 1)}, false},
        {0x0B, {Chosen(0, 0), Chosen(0, 1)}, Chosen(0, 2), true, {Chosen(0, 0), Chosen(0, 1), Chosen(0, 2)}, true},
        {0x0B, {Chosen(0, 0)}, Chosen(0, 0), true, {Chosen(0, 0)}, false},
        {0x07, {Chosen(0, 0), Chosen(0, 1), Chosen(1, 1)}, Chosen(0, 2), true, {Chosen(0, 2), Chosen(1, 1)}, true},
        {0x07, {Chosen(0, 0)}, Chosen(0, 0), true, {Chosen(0, 0)}, true},
        {0x0F, {Chosen(0, 0), Chosen(0, 1)}, Chosen(0, 0), true, {Chosen(0, 1)}, false},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(&one - cases);
        mouse.ClearSelection();
        fake.Series(0).setFlags(0, 0);
        fake.Series(0).setFlags(one.flags, 0);
        Select(one.selected);
        const Point2D& point = fake.Series().Points()[static_cast<std::size_t>(one.pressed.index)];
        Repaints();
        mouse.OnDown(chart.Seen().PlaceOf(point), {one.control, false});
        EXPECT_EQ(fake.Selected(), one.left);
        EXPECT_EQ(host.TakeNotes(),
                  one.isTold ? Chart2DNotes{Heard(kChart2DPointSelected, 0, one.pressed.index)} : Chart2DNotes{});
        EXPECT_EQ(Repaints(), one.selected == one.left && !one.isTold ? 0 : 1);
        EXPECT_EQ(chart.picked.index, static_cast<std::size_t>(one.pressed.index));
        mouse.OnUp();
        host.notes.clear();
    }
}

TEST_F(Chart2DMouseTest, AClickOnNothingClearsAllUnlessControlIsDown) {
    fake.AddSeries(0, {{50, 50, 0, 1}});
    Select({Chosen(0, 0)});
    fake.Click(At(10, 200), kWithControl);
    EXPECT_EQ(fake.Selected().size(), 2U);
    mouse.OnDown(At(10, 200), {});
    EXPECT_EQ(fake.Selected(), Chart2DNotes{});
    Select({Chosen(0, 0), Chosen(0, 1)});
    Repaints();
    mouse.OnDoubleClick(At(0, 0), {});
    EXPECT_EQ(fake.Selected(), Chart2DNotes{Chosen(0, 1)}) << "selected anew, not kept";
    EXPECT_EQ(Repaints(), 2) << "the end of the former band, and the point";
}

TEST_F(Chart2DMouseTest, ADragTakesAllAlongEachByItsFlags) {
    fake.AddSeries(kSeriesDragX | kSeriesHidden, {{10, 20, 0, 1}});
    fake.AddSeries(kSeriesDragY, {{10, 20, 0, 1}, {0, 0}});
    fake.AddSeries(kSeriesBand, {{10, 20, 0, 1}});
    Select({Chosen(0, 0), Chosen(0, 2)});
    Down(At(-100, -100));
    EXPECT_EQ(host.pointer, 0);
    mouse.OnMove(At(-93, -112));
    EXPECT_EQ(host.TakeNotes(),
              (Chart2DNotes{Heard(1125, 0, 0), Heard(1125, 0, 2), Heard(1125, 1, 0), Heard(1125, 2, 0)}));
    EXPECT_EQ(Place(0), std::pair(-93.0F, -112.0F));
    EXPECT_EQ(Place(1), std::pair(0.0F, 0.0F));
    EXPECT_EQ(Place(2), std::pair(107.0F, 88.0F));
    EXPECT_EQ(Place(0, 1), std::pair(17.0F, 20.0F));
    EXPECT_EQ(Place(0, 2), std::pair(10.0F, 8.0F));
    EXPECT_EQ(Place(0, 3), std::pair(10.0F, 20.0F));
    EXPECT_EQ(Repaints(), 1);
    EXPECT_EQ(host.pointer, -1);
    EXPECT_TRUE(host.placed.empty());
    const float half = 127.5F;
    fake.machine.ranges.Set(kChart2DX, nullptr, &half);
    mouse.OnMove(At(-89, -112));
    EXPECT_EQ(Place(0), std::pair(-90.0F, -112.0F)) << "so many pixels of the plot are so much of the span";
    const YUpPoint dropped = chart.Seen().PlaceOf(fake.Series().Points()[0]);
    mouse.OnUp();
    EXPECT_EQ(host.placed, std::vector<YUpPoint>{dropped});
    EXPECT_EQ(host.TakeNotes().back(), Heard(kChart2DDragEnded));
    EXPECT_EQ(host.pointer, 0);
    mouse.OnMove(At(0, 0));
    EXPECT_EQ(host.TakeNotes(), Chart2DNotes{});
}

TEST_F(Chart2DMouseTest, NoPointLeavesItsLimitsSoAllStop) {
    fake.AddSeries(kSeriesDragY, {{10, 20, 0, 1}});
    Select({Chosen(0, 0), Chosen(0, 2)});
    chart.limits = {ChartRange{-120, 110}, ChartRange{-255, 150}};
    Down(At(-100, -100));
    Select({Chosen(1, 0)});
    mouse.OnMove(At(0, 0));
    EXPECT_EQ(Place(2), std::pair(110.0F, 150.0F));
    EXPECT_EQ(Place(0), std::pair(-90.0F, -50.0F)) << "keeps its distance";
    EXPECT_EQ(Place(0, 1), std::pair(10.0F, 70.0F));
    chart.limits = {ChartRange{-120, 110}, ChartRange{60, 255}};
    mouse.OnMove(At(-200, 0));
    EXPECT_EQ(Place(0).first, -120.0F);
    EXPECT_EQ(Place(2).first, 80.0F);
    mouse.OnUp();
    fake.Series().clearFlags(kSeriesDragY, 0);
    const float before = Place(0).second;
    Down(chart.Seen().PlaceOf(fake.Series().Points()[0]));
    chart.limits[kChart2DY] = {0, 1};
    mouse.OnMove(At(-300, 300));
    EXPECT_EQ(Place(0).second, before) << "not to be moved on this axis, whose limit does not apply";
}

TEST_F(Chart2DMouseTest, OnlyWhatWasMovedAndIsThereGetsThePointer) {
    fake.Click(At(0, 0));
    EXPECT_TRUE(host.placed.empty()) << "not moved";
    for (const int what : {0, 1, 2}) {
        QZChart2DSeries& series = fake.AddSeries(kSeriesPick | kSeriesDragX, {{200, 200}});
        Down(At(200, 200));
        mouse.OnMove(At(210, 200));
        if (what == 0) mouse.EndGesture();
        if (what == 1) series.deletePoint(0);
        if (what == 2) fake.machine.DeleteSeries(&series, false);
        mouse.OnUp();
        EXPECT_TRUE(host.placed.empty()) << what;
        EXPECT_EQ(host.TakeNotes().back(), Heard(kChart2DDragEnded));
        EXPECT_EQ(host.pointer, 0);
        if (what != 2) series.clear();
    }
}

TEST_F(Chart2DMouseTest, WhereThereIsNoSpanOrNoPlotADragMovesNothing) {
    const float zero = 0.0F, endless = std::numeric_limits<float>::infinity();
    Down(At(0, 0));
    const struct {
        const float *minimum, *maximum;
        int width;
    } cases[] = {{&zero, &zero, 650}, {&zero, &endless, 650}, {&zero, &zero, 140}};
    for (const auto& one : cases) {
        fake.machine.ranges.Set(kChart2DX, one.minimum, one.maximum);
        fake.machine.OnSize(one.width, 650);
        mouse.OnMove(At(33, 0));
        mouse.OnMove(At(-7, 0));
        EXPECT_EQ(Place(1), std::pair(0.0F, 0.0F));
    }
}

TEST_F(Chart2DMouseTest, TheRangesFollowADrag) {
    fake.machine.SetStyle(kChart2DXFollows, false);
    Down(chart.Seen().PlaceOf(fake.Series().Points()[2]));
    mouse.OnMove({580 + 51, 325});
    EXPECT_EQ(host.TakeNotes(), (Chart2DNotes{Heard(1125, 0, 2), Heard(kChart2DXRangeChanged)}));
    EXPECT_EQ(chart.ranges[kChart2DX], (ChartRange{-100.0F, 120.0F}));
}

TEST_F(Chart2DMouseTest, TheBandSelectsWhatIsInItWithoutAWord) {
    fake.AddSeries(kSeriesPick, {{0, 0}, {200, 0}});
    fake.AddSeries(0, {{0, 0}});
    fake.AddSeries(kSeriesBand | kSeriesHidden, {{0, 0}});
    Down(At(100, 100 - 6));
    EXPECT_EQ(fake.Selected(), Chart2DNotes{});
    mouse.OnMove(At(0, -10));
    EXPECT_EQ(fake.Selected(), (Chart2DNotes{Chosen(0, 1), Chosen(1, 0)})) << "the border too";
    EXPECT_EQ(fake.Series().getSelectedCount(), 1);
    ASSERT_TRUE(chart.band);
    EXPECT_EQ(chart.band->corner, At(100, 94));
    EXPECT_EQ(chart.band->opposite, At(0, -10));
    EXPECT_EQ(Repaints(), 1);
    Select({Chosen(0, 1), Chosen(0, 1)});
    mouse.OnMove(At(99, 99));
    EXPECT_EQ(fake.Selected(), Chart2DNotes{});
    EXPECT_EQ(fake.Series().getSelectedCount(), 0) << "counted anew";
    mouse.OnMove(At(101, 101));
    EXPECT_EQ(fake.Selected(), Chart2DNotes{Chosen(0, 2)});
    EXPECT_EQ(host.pointer, 0);
    Repaints();
    mouse.OnUp();
    EXPECT_FALSE(chart.band);
    EXPECT_EQ(Repaints(), 1);
    EXPECT_EQ(host.TakeNotes(), Chart2DNotes{});
    fake.machine.OnSize(650, 140);
    Down({60, 60});
    mouse.OnMove({600, 90});
    EXPECT_EQ(fake.Selected(), Chart2DNotes{}) << "no plot";
    mouse.OnUp();
    fake.Series().clearFlags(kSeriesBand, 0);
    fake.machine.OnSize(650, 650);
    Down(At(90, 90));
    mouse.OnMove(At(200, 200));
    EXPECT_FALSE(chart.band) << "nothing for it to select";
}

TEST_F(Chart2DMouseTest, NothingMovesWhileControlOrShiftIsHeld) {
    for (const ChartModifiers held : {kWithControl, kWithShift}) {
        for (const YUpPoint place : {At(100, 100), At(50, 50)}) {
            Select({Chosen(0, 1)});
            Down(place, held);
            EXPECT_TRUE(host.hasCapture);
            mouse.OnMove(At(70, 70));
            EXPECT_EQ(Place(2), std::pair(100.0F, 100.0F));
            EXPECT_FALSE(chart.band);
            mouse.OnUp();
        }
    }
    Down(At(100, 100), kWithShift);
    fake.machine.OnKey(0x10, false);
    fake.machine.OnKey(0x11, true);
    mouse.OnMove(At(110, 110));
    EXPECT_EQ(Place(2), std::pair(100.0F, 100.0F));
    fake.machine.OnKey(0x11, false);
    fake.machine.OnKey(0x25, true);
    mouse.OnMove(At(120, 115));
    EXPECT_EQ(Place(2), std::pair(110.0F, 105.0F));
}

TEST_F(Chart2DMouseTest, AParentThatTakesTheSeriesAwayWhileItsPointsMoveBreaksNothing) {
    fake.AddSeries(kSeriesDefaultFlags, {{0, 50}, {50, 50}});
    fake.AddSeries(kSeriesDragX, {{7, 7}});
    Select({Chosen(0, 0), Chosen(0, 2)});
    Down(At(100, 100));
    Select({Chosen(1, 0), Chosen(1, 1), Chosen(2, 0)});
    host.handler = [&] {
        host.handler = nullptr;
        fake.machine.DeleteSeries(&fake.Series(), false);
    };
    mouse.OnMove(At(110, 110));
    EXPECT_EQ(host.TakeNotes(), Chart2DNotes{Heard(1125, 0, 0)}) << "by then the place of another";
    EXPECT_EQ(Place(1), std::pair(50.0F, 50.0F));
    host.handler = [&] { fake.Series().clear(); };
    mouse.OnMove(At(120, 120));
    EXPECT_EQ(host.TakeNotes(), (Chart2DNotes{Heard(1125, 0, 0), Heard(1125, 1, 0)}));
    host.handler = [&] { mouse.EndGesture(); };
    fake.Series().addPoint({0, 0});
    mouse.OnDown(At(0, 0), {});
    host.handler = nullptr;
    host.notes.clear();
    mouse.OnMove(At(9, 9));
    EXPECT_EQ(host.TakeNotes(), Chart2DNotes{});
    host.onCapture = [&] { mouse.EndGesture(); };
    mouse.ClearSelection();
    EXPECT_EQ(fake.Click(At(0, 0)), Chart2DNotes{}) << "it is over before it has begun";
    host.onCapture = nullptr;
    Select({Chosen(1, 0)});
    Down(chart.Seen().PlaceOf(fake.Series(0).Points()[0]));
    Select({Chosen(1, 0)});
    host.handler = [&] {
        host.handler = nullptr;
        fake.machine.AddSeries(0, false);
    };
    mouse.OnMove(At(19, 19));
    EXPECT_EQ(host.TakeNotes(), Chart2DNotes{Heard(1125, 0, 0)}) << "the places of all are others";
}

}  // namespace
}  // namespace corvex
