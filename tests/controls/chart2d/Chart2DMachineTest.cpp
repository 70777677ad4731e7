#include <gtest/gtest.h>

#include "tests/controls/chart2d/Chart2DHostFake.h"

namespace corvex {
namespace {

class Chart2DMachineTest : public ::testing::Test {
protected:
    FakeChart2D fake;
    Chart2DMachine& machine = fake.machine;
    Chart2DModel& chart = machine.chart;
};

TEST_F(Chart2DMachineTest, BeginsAsTold) {
    const Chart2DModel fresh;
    EXPECT_EQ(fresh.style, 7U);
    EXPECT_EQ(
        fresh.title + "|" + fresh.subtitle + "|" + fresh.axisTitles[kChart2DX] + "|" + fresh.axisTitles[kChart2DY],
        "2D Chart|QZ2DChart v2|X Axis|Y Axis");
    for (const auto& ends : {fresh.ranges, fresh.limits}) {
        EXPECT_EQ(ends[kChart2DX], (ChartRange{-255.0F, 255.0F}));
        EXPECT_EQ(ends[kChart2DY], (ChartRange{-255.0F, 255.0F}));
    }
}

TEST_F(Chart2DMachineTest, SeriesComeAndGoAtTheirPlace) {
    QZChart2DSeries* const first = &fake.Series();
    QZChart2DSeries* const last = machine.AddSeries(2, false);
    QZChart2DSeries* const begin = machine.AddSeries(0, true);
    EXPECT_EQ(&fake.Series(0), begin);
    EXPECT_EQ(&fake.Series(1), first);
    EXPECT_EQ(&fake.Series(2), last);
    EXPECT_EQ(fake.host.repaints, 1);
    chart.picked = {first, 2};
    EXPECT_TRUE(machine.DeleteSeries(last, false));
    EXPECT_EQ(chart.picked.series, first);
    EXPECT_TRUE(machine.DeleteSeries(first, false));
    EXPECT_EQ(chart.picked.series, nullptr);
    EXPECT_FALSE(machine.DeleteSeries(first, true));
    EXPECT_FALSE(machine.DeleteSeries(nullptr, true));
    EXPECT_EQ(fake.host.repaints, 1);
    EXPECT_TRUE(machine.DeleteSeries(begin, true));
    EXPECT_EQ(fake.host.repaints, 2);
}

TEST_F(Chart2DMachineTest, StylesAreAddedAndTakenAway) {
    machine.ClearStyle(kChart2DXTicks, false);
    EXPECT_EQ(chart.style, 5U);
    EXPECT_EQ(chart.ticks[kChart2DX].Count(), 0U);
    EXPECT_EQ(chart.ticks[kChart2DY].Count(), 12U);
    machine.SetStyle(kChart2DSubtitle, true);
    EXPECT_EQ(chart.style, 0x0DU);
    EXPECT_EQ(chart.ticks[kChart2DX].Count(), 0U);
    machine.ClearStyle(kChart2DYTicks, true);
    EXPECT_EQ(chart.ticks[kChart2DY].Count(), 0U);
    machine.SetStyle(kChart2DAnyTicks, false);
    EXPECT_EQ(chart.ticks[kChart2DX].Count(), 11U);
    EXPECT_EQ(chart.ticks[kChart2DY].Count(), 12U);
    EXPECT_EQ(fake.host.repaints, 2);
    machine.SetStyle(0, false);
    EXPECT_EQ(chart.style, 0U);
    EXPECT_EQ(chart.ticks[kChart2DX].Count(), 11U) << "nobody's now, and left alone";
    machine.OnSize(10, 20);
    EXPECT_EQ(chart.width * 100 + chart.height, 1020);
    EXPECT_EQ(fake.host.repaints, 3);
}

TEST_F(Chart2DMachineTest, UnknownColoursAreIgnored) {
    const std::vector<std::uint32_t> known{0xFFFFFF, 0xDCDCDC, 0, 0,        0, 0, 0,       0xFF0000,
                                           0,        0,        0, 0xC8C8C8, 0, 0, 0xC8C8C8};
    for (std::uint32_t index = 0; index < 30; ++index) {
        const bool isKnown = index < 15 && index != 6 && index != 10 && index != 12 && index != 13;
        EXPECT_EQ(machine.Colour(index), isKnown ? known[index] : 0U) << index;
        machine.SetColour(index, 0x123456);
        EXPECT_EQ(machine.Colour(index), isKnown ? 0x123456U : 0U) << index;
    }
    EXPECT_EQ(machine.Colour(0xFFFFFFFF), 0U);
}

TEST_F(Chart2DMachineTest, TheSelectionOfEverySeriesIsCleared) {
    fake.AddSeries(kSeriesHidden, {{0, 0, 0, 1}});
    fake.Series().selectPoint(1, 1, 0);
    machine.ClearSelection(false);
    EXPECT_EQ(fake.Selected(), Chart2DNotes{});
    EXPECT_EQ(fake.host.soon, 0);
    machine.ClearSelection(true);
    EXPECT_EQ(fake.host.soon, 2) << "painted once";
}

}  // namespace
}  // namespace corvex
