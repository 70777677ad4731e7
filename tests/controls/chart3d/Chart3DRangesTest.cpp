#include <gtest/gtest.h>

#include <limits>

#include "tests/controls/chart3d/Chart3DHostFake.h"

namespace corvex {
namespace {

constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

bool AreEnds(ChartRange range, float minimum, float maximum) {
    return range.minimum == minimum && range.maximum == maximum;
}

class Chart3DRangesTest : public ::testing::Test {
protected:
    // The codes that the parent was told by storing a point.
    std::vector<std::uint32_t> Set(int row, int column, Point3D point) {
        fake.host.notes.clear();
        fake.Plot().setPoint(row, column, point, 0);
        std::vector<std::uint32_t> codes;
        for (const Chart3DNote& note : fake.host.TakeNotes())
            codes.push_back(note.code);
        return codes;
    }

    using Codes = std::vector<std::uint32_t>;
    FakeChart fake;
    Chart3DMachine& machine = fake.machine;
    const std::array<ChartRange, kChart3DAxisCount>& ranges = machine.chart.space.ranges;
};

TEST_F(Chart3DRangesTest, WhatFollowsTakesTheExtentAndTheParentHearsOfIt) {
    EXPECT_EQ(Set(0, 0, {-5.0F, -5.0F, -5.0F}), Codes{});
    machine.SetStyle(kChart3DXFollows | kChart3DVerticalFollows, false);
    EXPECT_EQ(fake.host.TakeNotes(),
              (Chart3DNotes{{kXRangeHasChanged, -1, 0, 0}, {kVerticalRangeHasChanged, -1, 0, 0}}));
    EXPECT_TRUE(AreEnds(ranges[kXAxis], -5.0F, 150.0F));
    EXPECT_TRUE(AreEnds(ranges[kDepthAxis], 0.0F, 255.0F));
    EXPECT_TRUE(AreEnds(ranges[kVerticalAxis], -5.0F, 120.0F));
    machine.SetStyle(kChart3DDepthFollows, false);
    EXPECT_EQ(fake.host.TakeNotes().size(), 3U) << "each hears at every recomputation";
    EXPECT_TRUE(AreEnds(ranges[kDepthAxis], -5.0F, 100.0F));
}

TEST_F(Chart3DRangesTest, AStoredPointTellsOfWhatGrowsAndOfAllWhenSomethingShrinks) {
    machine.SetStyle(kChart3DAnyFollows, false);
    EXPECT_EQ(Set(1, 1, {100.0F, 50.0F, 60.0F}), Codes{});
    EXPECT_EQ(Set(1, 1, {100.0F, 50.0F, 300.0F}), Codes{kVerticalRangeHasChanged});
    EXPECT_EQ(Set(1, 1, {-1.0F, 50.0F, 400.0F}), (Codes{kXRangeHasChanged, kVerticalRangeHasChanged}));
    EXPECT_EQ(Set(1, 1, {-1.0F, 50.0F, 399.0F}).size(), 3U);
    EXPECT_TRUE(AreEnds(ranges[kXAxis], -1.0F, 150.0F));
    EXPECT_TRUE(AreEnds(ranges[kVerticalAxis], 20.0F, 399.0F));
    EXPECT_EQ(Set(1, 1, {100.0F, 50.0F, 120.0F}).size(), 3U) << "both ends are looked at";
    EXPECT_TRUE(AreEnds(ranges[kXAxis], 50.0F, 150.0F));
    EXPECT_EQ(Set(1, 1, {100.0F, 50.0F, 60.0F}), Codes{}) << "others are as high";
    machine.ClearStyle(kChart3DAnyFollows, false);
    EXPECT_EQ(Set(1, 1, {100.0F, 50.0F, 900.0F}), Codes{});
    EXPECT_TRUE(AreEnds(ranges[kVerticalAxis], 20.0F, 120.0F));
}

TEST_F(Chart3DRangesTest, HeightsThatAreNoneTakeNoPart) {
    machine.SetStyle(kChart3DVerticalFollows, false);
    EXPECT_EQ(Set(0, 0, {50.0F, 0.0F, kNotANumber}), Codes{});
    EXPECT_EQ(Set(0, 0, {50.0F, 0.0F, std::numeric_limits<float>::infinity()}), Codes{});
    for (int i = 0; i < 6; ++i)
        Set(i / 3, i % 3, {1.0F, 2.0F, kNotANumber});
    EXPECT_TRUE(AreEnds(ranges[kVerticalAxis], 120.0F, 120.0F)) << "the last that there was";
    EXPECT_EQ(Set(0, 0, {1.0F, 2.0F, -3.0e38F}), Codes{kVerticalRangeHasChanged});
    EXPECT_TRUE(AreEnds(ranges[kVerticalAxis], -3.0e38F, -3.0e38F));
}

TEST_F(Chart3DRangesTest, PointsThatComeOrGoOtherwiseAreLookedAtWithTheNextOne) {
    machine.SetStyle(kChart3DVerticalFollows, false);
    fake.Plot().setGridSize(1, 3);
    EXPECT_TRUE(AreEnds(ranges[kVerticalAxis], 20.0F, 120.0F));
    EXPECT_EQ(Set(0, 0, {50.0F, 0.0F, 21.0F}), Codes{kVerticalRangeHasChanged});
    EXPECT_TRUE(AreEnds(ranges[kVerticalAxis], 20.0F, 21.0F));
    QZChart3DPlot& other = fake.AddPlot(0, 2, 3);
    Set(0, 0, {50.0F, 0.0F, 22.0F});
    EXPECT_TRUE(AreEnds(ranges[kVerticalAxis], 20.0F, 120.0F));
    machine.DeletePlot(&other, false);
    Set(0, 0, {50.0F, 0.0F, 21.0F});
    EXPECT_TRUE(AreEnds(ranges[kVerticalAxis], 20.0F, 21.0F));
}

TEST_F(Chart3DRangesTest, ARangeThatFollowsIsNotSet) {
    const float low = 1.0F, high = 2.0F;
    machine.SetRange(kXAxis, &low, nullptr);
    machine.SetRange(kXAxis, nullptr, &high);
    EXPECT_TRUE(AreEnds(ranges[kXAxis], 1.0F, 2.0F));
    machine.SetStyle(kChart3DXFollows | kChart3DXTicks, false);
    machine.chart.ticks[kXAxis].Clear();
    machine.SetRange(kXAxis, &low, &high);
    EXPECT_TRUE(AreEnds(ranges[kXAxis], 50.0F, 150.0F));
    EXPECT_EQ(machine.chart.ticks[kXAxis].Count(), 0U);
}

TEST_F(Chart3DRangesTest, TicksAreMadeWhereTheStyleSaysSo) {
    const auto& ticks = machine.chart.ticks;
    machine.SetStyle(kChart3DXTicks | kChart3DVerticalTicks, false);
    ASSERT_EQ(ticks[kXAxis].Count(), 6U);
    EXPECT_EQ(ticks[kDepthAxis].Count(), 0U);
    EXPECT_EQ(ticks[kVerticalAxis].Count(), 6U);
    EXPECT_EQ(ticks[kXAxis].At(1)->label, "51.00");
    EXPECT_EQ(ticks[kXAxis].At(5)->value, 255.0F);
    machine.SetBoxSize(40.0F);
    EXPECT_EQ(ticks[kXAxis].Count(), 1U);
    const float high = 9.0F;
    machine.SetRange(kVerticalAxis, &high, nullptr);
    EXPECT_EQ(ticks[kVerticalAxis].At(0)->value, 9.0F);
    machine.ClearStyle(kChart3DNormalise, false);
    machine.chart.ticks[kXAxis].Clear();
    machine.OnSize(900, 900);
    EXPECT_EQ(ticks[kXAxis].Count(), 1U) << "of the box, whatever the client";
    machine.ClearStyle(kChart3DXTicks | kChart3DDepthTicks, false);
    EXPECT_EQ(ticks[kXAxis].Count(), 0U);
    EXPECT_EQ(ticks[kVerticalAxis].Count(), 1U);
}

TEST_F(Chart3DRangesTest, TicksComeAnewWithARangeAlone) {
    TickList& ticks = machine.chart.ticks[kXAxis];
    machine.SetStyle(kChart3DXTicks, false);
    const auto count = [&](float x) {
        ticks.Clear();
        Set(0, 0, {x, 0.0F, 0.0F});
        return ticks.Count();
    };
    EXPECT_EQ(count(-100.0F), 0U);
    machine.SetStyle(kChart3DXFollows, false);
    EXPECT_EQ(count(-50.0F), 6U);
    EXPECT_EQ(ticks.At(0)->value, -50.0F);
    EXPECT_EQ(count(-50.0F), 0U);
    machine.ClearStyle(kChart3DXFollows, false);
    EXPECT_EQ(count(-200.0F), 0U);
}

TEST_F(Chart3DRangesTest, AllRangesStandWhenTheParentHearsOfTheFirst) {
    bool areThere = true;
    fake.host.handler = [&] { areThere = areThere && AreEnds(ranges[kVerticalAxis], 20.0F, 120.0F); };
    machine.SetStyle(kChart3DAnyFollows, false);
    EXPECT_TRUE(areThere);
    fake.host.handler = [&] {
        fake.host.handler = nullptr;
        machine.DeletePlot(&fake.Plot(), false);
    };
    EXPECT_EQ(Set(0, 0, {500.0F, 500.0F, 500.0F}).size(), 3U);
    EXPECT_TRUE(machine.chart.plots.empty());
}

}  // namespace
}  // namespace corvex
