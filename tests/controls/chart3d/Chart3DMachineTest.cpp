#include <gtest/gtest.h>

#include "tests/controls/chart3d/Chart3DHostFake.h"

namespace corvex {
namespace {

class Chart3DMachineTest : public ::testing::Test {
protected:
    FakeChart fake;
    Chart3DMachine& machine = fake.machine;
    Chart3DModel& chart = machine.chart;
};

TEST_F(Chart3DMachineTest, PlotsStandWhereTheyWereAdded) {
    QZChart3DPlot* const first = &fake.Plot();
    QZChart3DPlot* const last = machine.AddPlot(99, true);
    QZChart3DPlot* const begin = machine.AddPlot(0, false);
    ASSERT_EQ(chart.plots.size(), 3U);
    EXPECT_EQ(&fake.Plot(0), begin);
    EXPECT_EQ(&fake.Plot(1), first);
    EXPECT_EQ(&fake.Plot(2), last);
    EXPECT_EQ(fake.host.repaints, 1);
    EXPECT_TRUE(machine.DeletePlot(first, false));
    EXPECT_FALSE(machine.DeletePlot(first, true));
    EXPECT_EQ(&fake.Plot(1), last);
    EXPECT_EQ(fake.host.repaints, 1);
    EXPECT_TRUE(machine.DeletePlot(last, true));
    EXPECT_EQ(fake.host.repaints, 2);
}

TEST_F(Chart3DMachineTest, TextsAreCut) {
    const std::string text(200, 'x');
    machine.SetSubtitle(text);
    machine.SetAxisTitle(kDepthAxis, text);
    EXPECT_EQ(chart.subtitle.size(), 60U);
    EXPECT_EQ(chart.axisTitles[kDepthAxis].size(), 40U);
}

TEST_F(Chart3DMachineTest, UnknownColoursAreIgnored) {
    const Chart3DModel fresh;
    for (std::uint32_t index = 0; index < 30; ++index) {
        const bool isKnown = index < 19 && index != 7 && (index < 12 || index > 16);
        EXPECT_EQ(machine.Colour(index), isKnown ? fresh.colours[index] : 0U) << index;
        machine.SetColour(index, 0x123456);
        EXPECT_EQ(machine.Colour(index), isKnown ? 0x123456U : 0U) << index;
    }
    EXPECT_EQ(machine.Colour(0xFFFFFFFF), 0U);
}

TEST_F(Chart3DMachineTest, TheBoxStandsInTheMiddle) {
    machine.SetBoxSize(55.0F);
    EXPECT_EQ(chart.space.boxSize, 55.0F);
    EXPECT_EQ(chart.space.pivot, (Vector3D{27.5F, 27.5F, 27.5F}));
    EXPECT_EQ(chart.space.translation, (Vector3D{100.0F, 100.0F, 0.0F}));
    fake.host.repaints = 0;
    machine.OnSize(100, 400);
    EXPECT_FLOAT_EQ(chart.space.boxSize, 57.735027F);
    EXPECT_EQ(fake.host.repaints, 1);
    machine.ClearStyle(kChart3DNormalise, false);
    machine.OnSize(0, 0);
    EXPECT_FLOAT_EQ(chart.space.boxSize, 57.735027F);
    EXPECT_FLOAT_EQ(chart.space.translation[0], (100.0F - 57.735027F) / 2.0F);
    machine.SetBoxSize(10.0F);
    EXPECT_EQ(chart.space.translation[0], -5.0F);
}

}  // namespace
}  // namespace corvex
