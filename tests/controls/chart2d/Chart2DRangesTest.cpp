#include <gtest/gtest.h>

#include <limits>

#include "tests/controls/chart2d/Chart2DHostFake.h"

namespace corvex {
namespace {

using Codes2D = std::vector<std::uint32_t>;
constexpr float kEndlessly = std::numeric_limits<float>::infinity(), kNotOne = std::numeric_limits<float>::quiet_NaN();

class Chart2DRangesTest : public ::testing::Test {
protected:
    Codes2D Told() {
        Codes2D codes;
        for (const Chart2DNote& note : fake.host.TakeNotes()) {
            EXPECT_EQ(note.series, -1);
            codes.push_back(note.code);
        }
        return codes;
    }
    std::vector<float> Values(Chart2DAxis axis) const {
        std::vector<float> values;
        for (const TickEntry& tick : chart.ticks[axis].All())
            values.push_back(tick.value);
        return values;
    }
    void Set(Chart2DAxis axis, float minimum, float maximum) { machine.ranges.Set(axis, &minimum, &maximum); }

    FakeChart2D fake;
    Chart2DMachine& machine = fake.machine;
    Chart2DModel& chart = machine.chart;
    QZChart2DSeries& series = fake.Series();
};

TEST_F(Chart2DRangesTest, TicksAreSpreadWithOneIntervalMoreForY) {
    const struct {
        int width, height;
        ChartRange x, y;
        std::vector<float> xTicks, yTicks;
    } cases[] = {
        {340, 290, {0, 100}, {0, 80}, {0, 25, 50, 75, 100}, {0, 20, 40, 60, 80}},
        {339, 289, {0, 300}, {-6, 6}, {0, 100, 200, 300}, {-6, -2, 2, 6}},
        {190, 190, {-1, 1}, {-1, 1}, {-1, 1}, {-1, 0, 1}},
        {189, 189, {-1, 1}, {-1, 1}, {-1}, {-1, 1}},
        {0, 0, {-1, 1}, {-1, 1}, {-1}, {-1}},
        {240, 140, {5, 5}, {-3e38F, 3e38F}, {5, 5, 5}, {-3e38F, 3e38F}},
    };
    for (const auto& one : cases) {
        machine.OnSize(one.width, one.height);
        Set(kChart2DX, one.x.minimum, one.x.maximum);
        Set(kChart2DY, one.y.minimum, one.y.maximum);
        EXPECT_EQ(Values(kChart2DX), one.xTicks) << one.width;
        EXPECT_EQ(Values(kChart2DY), one.yTicks) << one.height;
    }
    EXPECT_EQ(chart.ticks[kChart2DX].All()[1].label, "5.00");
    machine.OnSize(4000, 4000);
    EXPECT_EQ(chart.ticks[kChart2DX].Count() * 100 + chart.ticks[kChart2DY].Count(), 7879U);
    machine.ClearStyle(kChart2DXTicks, false);
    machine.OnSize(340, 340);
    EXPECT_EQ(chart.ticks[kChart2DX].Count() * 100 + chart.ticks[kChart2DY].Count(), 6U) << "the caller's";
}

TEST_F(Chart2DRangesTest, TicksAskForTheirLabels) {
    fake.host.label = [](ChartLabelKind kind, const Point2D& point) -> std::optional<std::string> {
        if (point.x + point.y < 0.0F) return std::nullopt;
        return std::to_string(kind) + (point.x > 0.0F ? "x" : "") + (point.y > 0.0F ? "y" : "");
    };
    machine.OnSize(240, 190);
    const auto labelsOf = [&](Chart2DAxis axis) {
        std::string labels;
        for (const TickEntry& tick : chart.ticks[axis].All())
            labels += tick.label + " ";
        return labels;
    };
    EXPECT_EQ(labelsOf(kChart2DX), "-255.00 1 1x ");
    EXPECT_EQ(labelsOf(kChart2DY), "-255.00 2 2y ");
}

TEST_F(Chart2DRangesTest, AMaximumBelowItsMinimumIsRaised) {
    const float low = 20.0F, high = 50.0F;
    Set(kChart2DX, 30.0F, 10.0F);
    EXPECT_EQ(chart.ranges[kChart2DX], (ChartRange{30.0F, 30.0F}));
    machine.ranges.Set(kChart2DX, nullptr, &high);
    EXPECT_EQ(chart.ranges[kChart2DX], (ChartRange{30.0F, 50.0F}));
    machine.ranges.Set(kChart2DX, &low, nullptr);
    EXPECT_EQ(chart.ranges[kChart2DX], (ChartRange{20.0F, 50.0F}));
    EXPECT_EQ(chart.ranges[kChart2DY], (ChartRange{-255.0F, 255.0F}));
    EXPECT_EQ(Values(kChart2DX).front(), 20.0F);
    Set(kChart2DX, kNotOne, 1.0F);
    Set(kChart2DX, -kEndlessly, kEndlessly);
    EXPECT_EQ(chart.ranges[kChart2DX], (ChartRange{-kEndlessly, kEndlessly}));
    machine.SetStyle(kChart2DYFollows, false);
    Set(kChart2DY, 1.0F, 2.0F);
    EXPECT_EQ(chart.ranges[kChart2DY], (ChartRange{-100.0F, 100.0F})) << "follows the data";
    EXPECT_EQ(Told(), Codes2D{kChart2DYRangeChanged});
}

// After each doing: what was told, and both ranges.
TEST_F(Chart2DRangesTest, WhatFollowsIsTheExtentOfAllPoints) {
    QZChart2DSeries& other = fake.AddSeries(kSeriesHidden, {});
    const struct {
        std::function<void()> work;
        Codes2D codes;
        ChartRange x, y;
    } steps[] = {
        {[&] {
             series.addPoint({500, 500});
         },
         {},
         {-255, 255},
         {-255, 255}},
        {[&] { machine.SetStyle(kChart2DXFollows, false); }, {1127}, {-100, 500}, {-255, 255}},
        {[&] { machine.SetStyle(kChart2DAnyFollows, false); }, {1128}, {-100, 500}, {-100, 500}},
        {[&] {
             series.addPoint({0, 600});
         },
         {1128},
         {-100, 500},
         {-100, 600}},
        {[&] {
             series.addPoint({1, 1});
         },
         {},
         {-100, 500},
         {-100, 600}},
        {[&] {
             other.addPoint({-700, -700});
         },
         {1127, 1128},
         {-700, 500},
         {-700, 600}},
        {[&] {
             other.insertPoint({0, 700}, 0);
         },
         {1128},
         {-700, 500},
         {-700, 700}},
        {[&] {
             other.setPoint(1, {-700, 0}, 0);
         },
         {1128},
         {-700, 500},
         {-100, 700}},
        {[&] {
             other.setPoint(1, {0, 0}, 0);
         },
         {1127},
         {-100, 500},
         {-100, 700}},
        {[&] { other.deletePoint(1); }, {}, {-100, 500}, {-100, 700}},
        {[&] { other.deletePoint(0); }, {1128}, {-100, 500}, {-100, 600}},
        {[&] {
             other.addPoint({kNotOne, kEndlessly});
         },
         {},
         {-100, 500},
         {-100, 600}},
        {[&] {
             other.addPoint({kNotOne, -800});
         },
         {1128},
         {-100, 500},
         {-800, 600}},
        {[&] { other.clear(); }, {1128}, {-100, 500}, {-100, 600}},
        {[&] { series.clear(); }, {}, {-100, 500}, {-100, 600}},
        {[&] {
             other.addPoint({7, 8});
         },
         {1127, 1128},
         {7, 7},
         {8, 8}},
        {[&] { machine.ClearStyle(kChart2DAnyFollows, false); }, {}, {7, 7}, {8, 8}},
        {[&] {
             other.addPoint({70, 80});
         },
         {},
         {7, 7},
         {8, 8}},
        {[&] { machine.SetStyle(kChart2DAnyFollows, false); }, {1127, 1128}, {7, 70}, {8, 80}},
        {[&] {
             series.addPoint({90, 9});
         },
         {1127},
         {7, 90},
         {8, 80}},
        {[&] { machine.DeleteSeries(&other, false); }, {1127, 1128}, {90, 90}, {9, 9}},
        {[&] { machine.DeleteSeries(&series, false); }, {}, {90, 90}, {9, 9}},
    };
    for (const auto& step : steps) {
        step.work();
        EXPECT_EQ(Told(), step.codes) << "step " << &step - steps;
        EXPECT_EQ(chart.ranges[kChart2DX], step.x) << "step " << &step - steps;
        EXPECT_EQ(chart.ranges[kChart2DY], step.y) << "step " << &step - steps;
        EXPECT_EQ(Values(kChart2DX).back(), step.x.maximum) << "step " << &step - steps;
    }
}

}  // namespace
}  // namespace corvex
