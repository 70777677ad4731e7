#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "controls/datachart/DataChartModel.h"
#include "controls/datachart/DataChartSeries.h"

namespace corvex {
namespace {

struct Point {
    int x, y;
    bool isFirst;
    bool operator==(const Point&) const = default;
};
using Points = std::vector<Point>;

void PrintTo(const Point& point, std::ostream* out) {
    *out << (point.isFirst ? "from " : "to ") << point.x << "," << point.y;
}

// One pixel for a unit: x to the right, y up from 100.
class DataChartSeriesTest : public ::testing::Test {
protected:
    DataChartSeriesTest() {
        x.setPosition(AxisPosition::kBottom);
        for (DataChartAxis* axis : {&x, &y}) {
            axis->plot = {0, 0, 100, 100};
            axis->setRange(0, 100);
        }
        EXPECT_EQ(series.setXAxis(&x), 1);
        EXPECT_EQ(series.setYAxis(&y), 1);
    }
    static Points PointsOf(const DataChartSeries& line) {
        Points points;
        line.Walk([&](int px, int py, bool isFirst) { points.push_back({px, py, isFirst}); });
        return points;
    }
    Points Walked() const { return PointsOf(series); }
    void Add(std::initializer_list<float> xs) {
        for (const float value : xs)
            EXPECT_TRUE(series.addSample(value, 1));
    }

    DataChartModel chart;
    DataChartAxis &x = *chart.AddAxis(), &y = *chart.AddAxis();
    DataChartSeries& series = *chart.AddSeries();
};

TEST_F(DataChartSeriesTest, TheSecondSampleDrawsTheFirstSegment) {
    EXPECT_TRUE(Walked().empty());
    series.addSample(10, 20);
    EXPECT_TRUE(Walked().empty());
    series.addSample(30, 40);
    EXPECT_EQ(Walked(), (Points{{10, 80, true}, {30, 60, false}}));
}

TEST_F(DataChartSeriesTest, WithoutBothAxesNothingIsDrawnAndNothingScrolls) {
    DataChartSeries& bare = *chart.AddSeries();
    x.flags = kAxisAutoScroll;
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(bare.addSample(5000, 5));
        EXPECT_TRUE(bare.addSample(6000, 6));
        EXPECT_EQ(bare.maxX, 6000.0f);
        EXPECT_TRUE(PointsOf(bare).empty());
        EXPECT_EQ(x.Maximum(), 100.0f);
        bare.setXAxis(&x);
    }
}

TEST_F(DataChartSeriesTest, AnAxisOnTheWrongSideIsNotTaken) {
    EXPECT_EQ(series.setXAxis(&y), 0);
    EXPECT_EQ(series.setYAxis(&x), 0);
    EXPECT_EQ(series.setXAxis(nullptr), 0);
    EXPECT_EQ(series.XAxis(), &x);
    EXPECT_EQ(series.YAxis(), &y);
}

TEST_F(DataChartSeriesTest, TheLineComesFromTheFirstSampleWhereverItLiesAndEndsBeforeOneBeyond) {
    const struct {
        std::vector<float> xs;
        float low;
        Points points;
    } cases[] = {{{0, 1, 2, 60, 70}, 50, {{-50, 99, true}, {10, 99, false}, {20, 99, false}}},
                 {{0, 10, 120, 20}, 0, {{0, 99, true}, {10, 99, false}}},
                 {{120, 10}, 0, {{120, 99, true}, {10, 99, false}}}};
    for (const auto& line : cases) {
        series.Clear();
        for (const float value : line.xs)
            series.addSample(value, 1);
        x.setRange(line.low, line.low + 100);
        EXPECT_EQ(Walked(), line.points);
    }
}

// As the rule is told, without the search.
Points PlainWalk(const std::vector<std::pair<float, float>>& samples, const DataChartAxis& x, const DataChartAxis& y) {
    Points points;
    if (samples.size() < 2) return points;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const auto [px, py] = samples[i];
        if (i > 0 && px < x.Minimum()) continue;
        if (i > 0 && px > x.Maximum()) break;
        points.push_back({x.PixelOf(px), y.PixelOf(py), i == 0});
    }
    return points;
}

TEST_F(DataChartSeriesTest, WhateverComesItIsTheLineOfThePlainWalk) {
    std::mt19937 random(7);
    using Limits = std::numeric_limits<float>;
    const float odd[] = {
        Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), 3e38f, -3e38f, 1e-45f, 0.0f, -0.0f};
    for (int round = 0; round < 3000; ++round) {
        std::vector<std::pair<float, float>> samples;
        series.Clear();
        const bool sorted = random() % 2 == 0, mayBeOdd = random() % 3 == 0;
        float at = 0;
        for (std::size_t i = random() % 60; i > 0; --i) {
            at = sorted ? at + static_cast<float>(random() % 4) : static_cast<float>(random() % 200) - 50;
            const float px = mayBeOdd && random() % 8 == 0 ? odd[random() % 8] : at;
            const float py = mayBeOdd && random() % 8 == 0 ? odd[random() % 8] : static_cast<float>(random() % 99);
            samples.emplace_back(px, py);
            series.addSample(px, py);
        }
        if (!samples.empty() && random() % 4 == 0) {
            const std::size_t place = random() % samples.size();
            const auto index = static_cast<std::uint32_t>(place);
            if (random() % 2 == 0) {
                samples[place] = {150, 3};
                EXPECT_EQ(series.setSample(150, 3, index), 1);
            } else {
                samples.erase(samples.begin() + static_cast<std::ptrdiff_t>(place));
                EXPECT_EQ(series.deleteSample(index), 1);
            }
        }
        const float low = mayBeOdd && random() % 8 == 0 ? odd[random() % 8] : static_cast<float>(random() % 60) - 10;
        x.setRange(low, low + static_cast<float>(random() % 80));
        EXPECT_EQ(Walked(), PlainWalk(samples, x, y)) << "round " << round;
    }
}

TEST_F(DataChartSeriesTest, SamplesAreReadAndChangedByIndex) {
    Add({1, 2, 3});
    float px = 0, py = 0;
    EXPECT_EQ(series.setSample(7, 8, 1), 1);
    EXPECT_EQ(series.getSample(&px, &py, 1), 1);
    EXPECT_EQ(px, 7.0f);
    EXPECT_EQ(py, 8.0f);
    EXPECT_EQ(series.setX(5, 1), 1);
    EXPECT_EQ(series.setY(6, 1), 1);
    EXPECT_EQ(series.getX(&px, 1), 1);
    EXPECT_EQ(series.getY(&py, 1), 1);
    EXPECT_EQ(px, 5.0f);
    EXPECT_EQ(py, 6.0f);
    EXPECT_EQ(series.deleteSample(0), 1);
    EXPECT_EQ(series.Count(), 2u);
    EXPECT_EQ(series.getX(&px, 0), 1);
    EXPECT_EQ(px, 5.0f);
    EXPECT_EQ(series.maxX, 3.0f) << "no bounds change";
    for (const int result : {series.setSample(0, 0, 2), series.getSample(&px, &py, 2), series.setX(0, 2),
                             series.getX(&px, 2), series.setY(0, 2), series.getY(&py, 2), series.deleteSample(2)})
        EXPECT_EQ(result, 0);
}

TEST_F(DataChartSeriesTest, BoundsWidenAndNegativeSamplesLeaveTheMaximumJustAboveZero) {
    EXPECT_EQ(series.minX, 3.4028235e38f);
    series.addSample(-3, -7);
    series.addSample(-5, -6);
    EXPECT_EQ(series.minX, -5.0f);
    EXPECT_EQ(series.minY, -7.0f);
    EXPECT_EQ(series.maxX, 1.1754944e-38f);
    EXPECT_EQ(series.maxY, 1.1754944e-38f);
    series.Clear();
    EXPECT_EQ(series.minX, -5.0f) << "clearing keeps them";
}

TEST_F(DataChartSeriesTest, ManySamplesAtOnceScrollNothing) {
    x.flags = kAxisAutoScroll;
    const float xs[] = {300, 400}, ys[] = {-1, -2};
    EXPECT_TRUE(series.addSamples(xs, ys, 2, false));
    EXPECT_TRUE(series.addSamples(xs, ys, 1, false));
    EXPECT_EQ(series.Count(), 3u);
    EXPECT_EQ(x.Maximum(), 100.0f);
    EXPECT_EQ(series.maxY, 1.1754944e-38f);
    EXPECT_TRUE(series.addSamples(xs, ys, 2, true));
    EXPECT_EQ(series.Count(), 2u);
    EXPECT_EQ(series.maxX, 400.0f);
    EXPECT_EQ(series.maxY, -1.0f) << "the bounds begin with the first pair";
    EXPECT_TRUE(series.addSamples(nullptr, nullptr, 0, true));
    EXPECT_EQ(series.Count(), 0u);
    EXPECT_EQ(series.maxY, -1.0f);
}

TEST_F(DataChartSeriesTest, AScrollFollowsTheSamplesOfBothAxes) {
    x.flags = y.flags = kAxisAutoScroll;
    series.addSample(110, -10);
    EXPECT_EQ(x.Maximum(), 125.0f);
    EXPECT_EQ(y.Minimum(), -25.0f);
    EXPECT_TRUE(chart.IsLayoutDue());
}

TEST_F(DataChartSeriesTest, NamesAreCopies) {
    char name[8] = "";
    series.setName("Speed", 3);
    EXPECT_EQ(series.getName(name, sizeof name), 3u);
    EXPECT_STREQ(name, "Spe");
    series.setName(nullptr, 0);
    EXPECT_EQ(series.getName(name, sizeof name), 0u);
}

}  // namespace
}  // namespace corvex
