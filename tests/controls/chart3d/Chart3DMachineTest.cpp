#include <gtest/gtest.h>

#include <limits>

#include "tests/controls/chart3d/Chart3DHostFake.h"

namespace corvex {
namespace {

class Chart3DMachineTest : public ::testing::Test {
protected:
    // Repaints at once of work that has it said whether it is to repaint.
    template <class Work>
    int Repaints(const Work& work) {
        fake.host.repaints = 0;
        work(false);
        EXPECT_EQ(fake.host.repaints, 0);
        work(true);
        return fake.host.repaints;
    }

    FakeChart fake;
    Chart3DMachine& machine = fake.machine;
    Chart3DModel& chart = machine.chart;
};

TEST_F(Chart3DMachineTest, PlotsStandWhereTheyWereAdded) {
    QZChart3DPlot* const first = &fake.Plot();
    QZChart3DPlot* const last = machine.AddPlot(1, false);
    QZChart3DPlot* const begin = machine.AddPlot(0, false);
    QZChart3DPlot* const end = machine.AddPlot(std::numeric_limits<std::size_t>::max(), false);
    ASSERT_EQ(chart.plots.size(), 4U);
    EXPECT_EQ(&fake.Plot(0), begin);
    EXPECT_EQ(&fake.Plot(1), first);
    EXPECT_EQ(&fake.Plot(2), last);
    EXPECT_EQ(&fake.Plot(3), end);
    EXPECT_TRUE(machine.DeletePlot(first, false));
    EXPECT_FALSE(machine.DeletePlot(first, true));
    EXPECT_FALSE(machine.DeletePlot(nullptr, true));
    EXPECT_EQ(&fake.Plot(1), last);
    EXPECT_EQ(Repaints([&](bool redraws) { machine.DeletePlot(machine.AddPlot(0, redraws), redraws); }), 2);
}

TEST_F(Chart3DMachineTest, StylesAreAddedAndTakenAway) {
    EXPECT_EQ(Repaints([&](bool redraws) { machine.SetStyle(kChart3DWireframe, redraws); }), 1);
    EXPECT_EQ(chart.style, 0x4461U);
    EXPECT_EQ(Repaints([&](bool redraws) { machine.ClearStyle(kChart3DOffscreen | 0x1000, redraws); }), 1);
    EXPECT_EQ(chart.style, 0x4460U);
    machine.SetStyle(0, false);
    EXPECT_EQ(chart.style, 0U);
    EXPECT_EQ(fake.host.TakeNotes(), Chart3DNotes{});
}

TEST_F(Chart3DMachineTest, TextsAreCut) {
    const std::string text(200, 'x');
    machine.SetTitle(text);
    machine.SetSubtitle(text);
    machine.SetAxisTitle(kDepthAxis, text);
    EXPECT_EQ(chart.title.size(), 100U);
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

TEST_F(Chart3DMachineTest, EachEndIsSetByItself) {
    const float value = 7.0F;
    machine.SetLimits(kDepthAxis, &value, nullptr);
    machine.SetLimits(kVerticalAxis, nullptr, &value);
    EXPECT_EQ(machine.mouse.limits[kDepthAxis].minimum, 7.0F);
    EXPECT_EQ(machine.mouse.limits[kDepthAxis].maximum, 255.0F);
    EXPECT_EQ(machine.mouse.limits[kVerticalAxis].minimum, 0.0F);
    EXPECT_EQ(machine.mouse.limits[kVerticalAxis].maximum, 7.0F);
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

TEST_F(Chart3DMachineTest, ThePageTurnsShiftsAndScales) {
    EXPECT_EQ(Repaints([&](bool redraws) { machine.SetRotation({1, 2, 3}, redraws); }), 1);
    EXPECT_EQ(Repaints([&](bool redraws) { machine.SetTranslation({4, 5, 6}, redraws); }), 1);
    EXPECT_EQ(Repaints([&](bool redraws) { machine.SetScale(7, redraws); }), 1);
    EXPECT_EQ(chart.space.rotation, (Vector3D{1, 2, 3}));
    EXPECT_EQ(chart.space.translation, (Vector3D{4, 5, 6}));
    EXPECT_EQ(chart.space.scale, (Vector3D{7, 7, 7}));
    EXPECT_FALSE(chart.isPanned);
}

TEST_F(Chart3DMachineTest, ASelectionIsClearedInEveryPlot) {
    fake.AddPlot(0, 1, 1).selectPoint(0, 0, 1, 0);
    fake.Plot().selectPoint(1, 1, 1, 0);
    EXPECT_EQ(Repaints([&](bool redraws) { machine.ClearSelection(redraws); }), 0);
    EXPECT_EQ(fake.host.soon, 2) << "each with the next paint";
    EXPECT_EQ(fake.Selected(), Chart3DNotes{});
}

}  // namespace
}  // namespace corvex
