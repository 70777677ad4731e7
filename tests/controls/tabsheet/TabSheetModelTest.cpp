#include <gtest/gtest.h>

#include <tuple>

#include "controls/tabsheet/TabSheetModel.h"

namespace corvex {
namespace {

struct FrameCase {
    int hit;
    unsigned bit;
};
constexpr FrameCase kFrame[] = {{12, 0x01}, {15, 0x02}, {10, 0x04}, {11, 0x08},
                                {13, 0x10}, {14, 0x20}, {16, 0x40}, {17, 0x80}};

TEST(TabSheetModelTest, EachPartOfTheFrameHasItsBit) {
    for (const FrameCase& part : kFrame) {
        EXPECT_EQ(LockedHit(part.hit, 0), part.hit);
        EXPECT_EQ(LockedHit(part.hit, part.bit), 1) << part.hit;
        EXPECT_EQ(LockedHit(part.hit, 0xFFu & ~part.bit), part.hit) << part.hit;
    }
}

TEST(TabSheetModelTest, CaptionButtonsAndClientAreNeverLocked) {
    for (const int hit : {-2, -1, 0, 1, 2, 3, 4, 5, 8, 9, 18, 20})
        EXPECT_EQ(LockedHit(hit, ~0u), hit);
}

TEST(TabSheetModelTest, TabsBeyondTheListAreAppended) {
    for (const auto& [wanted, count, place] :
         {std::tuple{-1, 3, 3}, {-7, 3, 3}, {4, 3, 3}, {3, 3, 3}, {0, 3, 0}, {2, 3, 2}, {0, 0, 0}})
        EXPECT_EQ(TabPlace(wanted, count), place) << wanted;
}

TEST(TabSheetModelTest, TheTabThatMovesUpIsShownNext) {
    for (const auto& [gone, left, next] : {std::tuple{0, 2, 0}, {1, 2, 1}, {2, 2, 1}, {-1, 2, 0}, {0, 0, -1}})
        EXPECT_EQ(TabAfterRemoval(gone, left), next) << gone;
}

TEST(TabSheetModelTest, EdgesThatHaveCrossedLeaveNoSize) {
    EXPECT_EQ(BoxOfEdges(4, 24, 396, 296), (PageBox{4, 24, 392, 272}));
    EXPECT_EQ(BoxOfEdges(4, 24, -4, -4), (PageBox{4, 24, 0, 0}));
}

}  // namespace
}  // namespace corvex
