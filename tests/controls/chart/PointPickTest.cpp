#include <gtest/gtest.h>

#include <climits>

#include "controls/chart/PointPick.h"

namespace corvex {
namespace {

TEST(PointPickTest, ThePointerIsNearWithinTheRadiusOnBothAxes) {
    for (const int distance : {-4, -3, 0, 3, 4}) {
        const bool isNear = distance >= -3 && distance <= 3;
        EXPECT_EQ(IsNear({10, 20}, {10 + distance, 20}, 3), isNear) << distance;
        EXPECT_EQ(IsNear({10, 20}, {10, 20 + distance}, 3), isNear) << distance;
    }
    EXPECT_FALSE(IsNear({INT_MAX, 0}, {INT_MIN, 0}, INT_MAX));
}

TEST(PointPickTest, ABoxHasItsBorderInWhateverCornersItIsGivenBy) {
    for (const YUpBox& box : {YUpBox{{1, 2}, {5, 8}}, {{5, 8}, {1, 2}}, {{1, 8}, {5, 2}}, {{5, 2}, {1, 8}}}) {
        int inside = 0;
        for (int x = -2; x < 10; ++x) {
            for (int y = -2; y < 10; ++y) {
                EXPECT_EQ(IsInBox({x, y}, box), x >= 1 && x <= 5 && y >= 2 && y <= 8);
                inside += IsInBox({x, y}, box) ? 1 : 0;
            }
        }
        EXPECT_EQ(inside, 35);
    }
}

TEST(PointPickTest, OnlyOneOfAGroupIsTakenOutOrKeepsIt) {
    for (const bool control : {false, true}) {
        EXPECT_EQ(ClickOn(false, 5, control), PointClick::kSelect);
        EXPECT_EQ(ClickOn(true, 1, control), PointClick::kSelect);
        EXPECT_EQ(ClickOn(true, 2, control), control ? PointClick::kDeselect : PointClick::kKeepGroup);
    }
}

}  // namespace
}  // namespace corvex
