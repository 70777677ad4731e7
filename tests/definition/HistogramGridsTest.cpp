#include <gtest/gtest.h>

#include <vector>

#include "definition/HistogramGrids.h"

namespace corvex {
namespace {

std::vector<float> Kept(const HistogramHistoryGrid& grid) {
    const std::uint32_t count = grid.Count(0, 0);
    const float* samples = grid.Samples(0, 0);
    return {samples, samples + count};
}

HistogramHistoryGrid Filled(std::uint32_t historysize, int count) {
    HistogramHistoryGrid grid;
    grid.Resize(1, 1);
    grid.SetHistorySize(historysize);
    for (int i = 1; i <= count; ++i) {
        grid.Add(0, 0, static_cast<float>(i));
    }
    return grid;
}

TEST(HistogramHistoryGrid, KeepsTheNewestFirst) {
    EXPECT_EQ(Kept(Filled(10, 3)), (std::vector<float>{3, 2, 1}));
}

TEST(HistogramHistoryGrid, LosesTheOldestOfTenAtTheEleventh) {
    EXPECT_EQ(Kept(Filled(10, 10)), (std::vector<float>{10, 9, 8, 7, 6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(Kept(Filled(10, 11)), (std::vector<float>{11, 10, 9, 8, 7, 6, 5, 4, 3, 2}));
    EXPECT_EQ(Kept(Filled(10, 25)), (std::vector<float>{25, 24, 23, 22, 21, 20, 19, 18, 17, 16}));
}

TEST(HistogramHistoryGrid, KeepsAShorterHistory) {
    EXPECT_EQ(Kept(Filled(3, 7)), (std::vector<float>{7, 6, 5}));
    EXPECT_EQ(Kept(Filled(1, 7)), (std::vector<float>{7}));
}

TEST(HistogramHistoryGrid, LosesTheTenthSampleOfALongerHistoryOnce) {
    EXPECT_EQ(Kept(Filled(12, 11)), (std::vector<float>{11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 0}));
    EXPECT_EQ(Kept(Filled(12, 12)), (std::vector<float>{12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 0}));
    EXPECT_EQ(Kept(Filled(12, 13)), (std::vector<float>{13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2}));
}

TEST(HistogramHistoryGrid, TakesAnyHistorySizeWithoutAskingForItsMemory) {
    EXPECT_EQ(Filled(0xFFFFFFFF, 5).Count(0, 0), 5u);
}

TEST(HistogramHistoryGrid, IgnoresAHistoryOfNothing) {
    HistogramHistoryGrid grid = Filled(10, 3);
    grid.SetHistorySize(0);
    EXPECT_EQ(grid.HistorySize(), 10u);
    EXPECT_EQ(grid.Count(0, 0), 3u);
    grid.SetHistorySize(5);
    EXPECT_EQ(grid.HistorySize(), 5u);
    EXPECT_EQ(grid.Count(0, 0), 0u);
}

TEST(HistogramHistoryGrid, IgnoresCellsOutside) {
    HistogramHistoryGrid grid;
    grid.Add(0, 0, 1);
    EXPECT_EQ(grid.Count(0, 0), 0u);
    grid.Resize(2, 3);
    grid.Add(2, 0, 1);
    grid.Add(0, 3, 1);
    grid.Add(0xFFFFFFFF, 0xFFFFFFFF, 1);
    EXPECT_EQ(grid.Samples(2, 0), nullptr);
    EXPECT_EQ(grid.Count(1, 0), 0u);
    grid.Add(1, 2, 1);
    EXPECT_EQ(grid.Count(1, 2), 1u);
    EXPECT_EQ(grid.Count(0, 2), 0u);
}

TEST(HistogramHistoryGrid, ThrowsItsCellsAwayOnResizeAndClear) {
    HistogramHistoryGrid grid = Filled(10, 3);
    grid.Resize(1, 1);
    EXPECT_EQ(grid.Count(0, 0), 0u);
    grid.Add(0, 0, 1);
    grid.Clear();
    EXPECT_EQ(grid.Count(0, 0), 0u);
    EXPECT_EQ(grid.HistorySize(), 10u);
}

TEST(HistogramStatsGrid, SeedsOnlyTheMaximumWithAFirstSampleAboveZero) {
    HistogramStatsGrid grid;
    grid.Resize(1, 1);
    EXPECT_EQ(grid.Cell(0, 0), nullptr);
    grid.Add(0, 0, 5);
    ASSERT_NE(grid.Cell(0, 0), nullptr);
    EXPECT_EQ(grid.Cell(0, 0)->min, 3.4028235E38F);
    EXPECT_EQ(grid.Cell(0, 0)->max, 5.0F);
    grid.Add(0, 0, 4);
    EXPECT_EQ(grid.Cell(0, 0)->min, 4.0F);
}

TEST(HistogramStatsGrid, KeepsCountAndMean) {
    HistogramStatsGrid grid;
    grid.Resize(1, 1);
    for (const float z : {1.0F, 2.0F, 6.0F}) {
        grid.Add(0, 0, z);
    }
    EXPECT_EQ(grid.Cell(0, 0)->count, 3u);
    EXPECT_EQ(grid.Cell(0, 0)->mean, 3.0F);
    grid.Add(1, 0, 1);
    EXPECT_EQ(grid.Cell(1, 0), nullptr);
    grid.Clear();
    EXPECT_EQ(grid.Cell(0, 0), nullptr);
}

}  // namespace
}  // namespace corvex
