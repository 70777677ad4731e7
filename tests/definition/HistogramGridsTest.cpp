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
    const struct {
        std::uint32_t historysize;
        int count;
        std::vector<float> kept;
    } cases[] = {
        {10, 3, {3, 2, 1}},
        {10, 10, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1}},
        {10, 11, {11, 10, 9, 8, 7, 6, 5, 4, 3, 2}},
        {10, 25, {25, 24, 23, 22, 21, 20, 19, 18, 17, 16}},
        {3, 7, {7, 6, 5}},
        {1, 7, {7}},
        // A longer history loses its tenth sample once.
        {12, 11, {11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 0}},
        {12, 12, {12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 0}},
        {12, 13, {13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2}},
        // Any size is taken without asking for its memory.
        {0xFFFFFFFF, 2, {2, 1}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Kept(Filled(one.historysize, one.count)), one.kept) << one.historysize;
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
