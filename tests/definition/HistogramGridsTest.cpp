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

TEST(HistogramHistoryGrid, LosesItsCellsWithSizeOrHistoryButNotForAHistoryOfNothing) {
    const auto change = [](HistogramHistoryGrid grid, const auto& how) {
        how(grid);
        return std::pair(grid.HistorySize(), grid.Count(0, 0));
    };
    const HistogramHistoryGrid grid = Filled(10, 3);
    EXPECT_EQ(change(grid, [](auto& it) { it.SetHistorySize(0); }), std::pair(10U, 3U));
    EXPECT_EQ(change(grid, [](auto& it) { it.SetHistorySize(5); }), std::pair(5U, 0U));
    EXPECT_EQ(change(grid, [](auto& it) { it.Resize(1, 1); }), std::pair(10U, 0U));
    EXPECT_EQ(change(grid, [](auto& it) { it.Clear(); }), std::pair(10U, 0U));
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

TEST(HistogramStatsGrid, KeepsCountAndMeanAndSeedsTheMaximumAlone) {
    HistogramStatsGrid grid;
    grid.Resize(1, 1);
    EXPECT_EQ(grid.Cell(0, 0), nullptr);
    grid.Add(1, 0, 1);
    EXPECT_EQ(grid.Cell(1, 0), nullptr);
    const struct { float z, min, max, mean; } rows[] = {{5, 3.4028235E38F, 5, 5}, {4, 4, 5, 4.5F}, {0, 0, 5, 3}};
    std::uint32_t count = 0;
    for (const auto& row : rows) {
        grid.Add(0, 0, row.z);
        ASSERT_NE(grid.Cell(0, 0), nullptr);
        EXPECT_EQ(grid.Cell(0, 0)->min, row.min);
        EXPECT_EQ(grid.Cell(0, 0)->max, row.max);
        EXPECT_EQ(grid.Cell(0, 0)->mean, row.mean);
        EXPECT_EQ(grid.Cell(0, 0)->count, ++count);
    }
    grid.Clear();
    EXPECT_EQ(grid.Cell(0, 0), nullptr);
}

}  // namespace
}  // namespace corvex
