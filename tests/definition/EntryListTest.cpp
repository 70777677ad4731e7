#include <gtest/gtest.h>

#include "definition/EntryList.h"

namespace corvex {
namespace {

using Numbers = EntryList<int>;

Numbers Counted(int n) {
    Numbers list;
    for (int i = 0; i < n; ++i) {
        list.AddEntry(&i);
    }
    return list;
}

TEST(EntryList, CopiesOverAnEntryAndHasNonePastTheEnd) {
    Numbers list = Counted(3), none;
    const int seven = 7;
    EXPECT_EQ(list.SetEntry(1, &seven), 1);
    EXPECT_EQ(*list.GetEntry(1), 7);
    EXPECT_EQ(*list.GetEntry(2), 2);
    EXPECT_EQ(list.GetEntry(3), nullptr);
    EXPECT_EQ(none.GetEntry(0), nullptr);
    EXPECT_EQ(list.SetEntry(3, &seven), 0);
    EXPECT_EQ(list.SetEntry(0, nullptr), 0);
    EXPECT_EQ(none.SetEntry(0, &seven), 0);
}

TEST(EntryList, HoldsAtMost255Entries) {
    Numbers list = Counted(300);
    EXPECT_EQ(list.GetEntryCount(), 255u);
    EXPECT_EQ(*list.GetEntry(254), 254);
    list.AddEntry(nullptr);
    EXPECT_EQ(list.GetEntryCount(), 255u);
}

TEST(EntryList, KeepsTheFirstEntriesAndIgnoresACountOf256OrMore) {
    Numbers list = Counted(10);
    const struct { std::uint32_t asked, count; } cases[] = {{256, 10}, {0xFFFFFFFF, 10}, {255, 255}, {5, 5}, {0, 0}};
    for (const auto& one : cases) {
        list.SetEntryCount(one.asked);
        EXPECT_EQ(list.GetEntryCount(), one.count);
        for (std::uint32_t i = 0; i < one.count; ++i)
            EXPECT_EQ(*list.GetEntry(i), i < 10 ? static_cast<int>(i) : 0);
    }
}

TEST(EntryList, ClosesTheGapOfARemovedEntry) {
    Numbers list = Counted(3);
    list.RemoveEntry(3);
    EXPECT_EQ(list.GetEntryCount(), 3u);
    list.RemoveEntry(1);
    ASSERT_EQ(list.GetEntryCount(), 2u);
    EXPECT_EQ(*list.GetEntry(0), 0);
    EXPECT_EQ(*list.GetEntry(1), 2);
}

TEST(EntryList, AppendsACopyOfItsOwnEntry) {
    Numbers list = Counted(1);
    for (int i = 0; i < 20; ++i) {
        list.AddEntry(list.GetEntry(0));
    }
    EXPECT_EQ(list.GetEntryCount(), 21u);
    EXPECT_EQ(*list.GetEntry(20), 0);
}

}  // namespace
}  // namespace corvex
