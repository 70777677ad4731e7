// Charts when memory runs out.
#include <gtest/gtest.h>

#include <vector>

#include "controls/datachart/DataChartModel.h"
#include "tests/support/AllocationCount.h"

namespace corvex {
namespace {

TEST(DataChartMemoryTest, ASampleThatFindsNoRoomIsDroppedAndTheRestStays) {
    DataChartModel chart;
    DataChartSeries& series = *chart.AddSeries();
    const std::vector<float> many(1000, 1.0f);
    for (int i = 0; i < 4; ++i)
        ASSERT_TRUE(series.addSample(static_cast<float>(i), 1));
    {
        const testing::NoMemory none;
        EXPECT_FALSE(series.addSample(9, 1));
        EXPECT_FALSE(series.addSamples(many.data(), many.data(), 1000, true));
        EXPECT_EQ(chart.AddSeries(), nullptr);
        EXPECT_EQ(chart.AddAxis(), nullptr);
    }
    EXPECT_EQ(series.Count(), 4u);
    EXPECT_EQ(series.maxX, 3.0f);
    EXPECT_EQ(chart.SeriesCount(), 1u);
    EXPECT_EQ(chart.AxisCount(), 0u);
    EXPECT_TRUE(series.addSample(9, 1));
}

TEST(DataChartMemoryTest, SamplesGrowInFewSteps) {
    DataChartModel chart;
    DataChartSeries &series = *chart.AddSeries(), &pairs = *chart.AddSeries();
    const std::uint64_t before = testing::AllocationCount();
    for (int i = 0; i < 100000; ++i) {
        const float x = static_cast<float>(i), y = 1;
        series.addSample(x, y);
        pairs.addSamples(&x, &y, 1, false);
    }
    EXPECT_LT(testing::AllocationCount() - before, 40u);
}

}  // namespace
}  // namespace corvex
