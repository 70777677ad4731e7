#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "controls/chart3d/AxisTitles.h"
#include "tests/controls/chart3d/Chart3DReference.h"

namespace corvex {
namespace {

constexpr double kPixel = 1.52;  // two places are cut, and the half of their sum once more

class AxisTitlesTest : public ::testing::Test {
protected:
    std::array<AxisTitle, 4> Titles() const { return AxisTitlesOf(chart, chart.Seen()); }
    ReferencePlace Seen(const BoxPlace& part) const {
        return ReferenceProject(chart.space, PlaceIn(chart.space, part));
    }
    void Turn(std::mt19937& random) {
        chart.space = RandomSpace(random);
        chart.style = chart.space.normalises ? kChart3DNormalise : 0u;
        chart.labelPad = static_cast<int>(random() % 100);
    }
    void ExpectNear(const AxisTitle& title, double x, double y) const {
        EXPECT_NEAR(title.at.x, x, kPixel);
        EXPECT_NEAR(title.at.y, y, kPixel);
    }
    void ExpectFloorTitle(const AxisTitle& title, Chart3DAxis axis);

    Chart3DModel chart;
};

TEST_F(AxisTitlesTest, TheVerticalOnesStandLeftAndRightOfTheBox) {
    std::mt19937 random(11);
    for (int round = 0; round < 500; ++round) {
        Turn(random);
        const auto titles = Titles();
        const std::array uprights{Seen({0.0F, 0.0F, 0.5F}), Seen({0.0F, 1.0F, 0.5F}), Seen({1.0F, 0.0F, 0.5F}),
                                  Seen({1.0F, 1.0F, 0.5F})};
        const auto [left, right] = std::ranges::minmax(uprights, {}, &ReferencePlace::x);
        const bool isFirstLeft = titles[0].at.x < titles[1].at.x;
        ExpectNear(titles[isFirstLeft ? 0 : 1], left.x - chart.labelPad - 20, left.y);
        ExpectNear(titles[isFirstLeft ? 1 : 0], right.x + chart.labelPad + 20, right.y);
        for (const std::size_t i : {0u, 1u}) {
            EXPECT_EQ(titles[i].axis, kVerticalAxis);
            EXPECT_EQ(titles[i].side, TextSide::kCentred);
            EXPECT_TRUE(titles[i].isTurned);
        }
    }
}

// Beside the edge in front, at a right angle and away from the middle; above the box the other way sideways.
void AxisTitlesTest::ExpectFloorTitle(const AxisTitle& title, Chart3DAxis axis) {
    const std::size_t across = 1 - axis;
    const bool risen = chart.space.rotation[0] > 0.0F;
    BoxPlace start{0.0F, 0.0F, risen ? 1.0F : 0.0F}, end = start, middle = start;
    end[axis] = 1.0F;
    middle[kXAxis] = middle[kDepthAxis] = 0.5F;
    BoxPlace other = start;
    other[across] = 1.0F;
    if (LevelDepth(chart.space, PlaceIn(chart.space, other)) < LevelDepth(chart.space, PlaceIn(chart.space, start)))
        start[across] = end[across] = 1.0F;
    const ReferencePlace from = Seen(start), to = Seen(end), centre = Seen(middle);
    const double midX = (from.x + to.x) / 2, midY = (from.y + to.y) / 2;
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    double outX = (to.y - from.y) / length, outY = -(to.x - from.x) / length;
    if (outX * (midX - centre.x) + outY * (midY - centre.y) < 0) outX = -outX, outY = -outY;
    // The cut of its ends turns a short edge by more.
    const double slack = 2.02 + chart.labelPad * 1.5 / length;
    EXPECT_NEAR(title.at.x, midX + chart.labelPad * (risen ? -outX : outX), slack);
    EXPECT_NEAR(title.at.y, midY + chart.labelPad * outY, slack);
    if (std::abs(outX) > 0.01) {
        EXPECT_EQ(title.side, outX < 0 ? TextSide::kLeft : TextSide::kRight);
    }
    EXPECT_EQ(title.axis, axis);
    EXPECT_FALSE(title.isTurned);
}

TEST_F(AxisTitlesTest, TheFloorsStandBesideTheEdgesInFront) {
    std::mt19937 random(12);
    for (int round = 0; round < 500; ++round) {
        Turn(random);
        const auto titles = Titles();
        ExpectFloorTitle(titles[2], kXAxis);
        ExpectFloorTitle(titles[3], kDepthAxis);
        if (HasFailure()) FAIL() << round << " " << chart.space.rotation[0] << " " << chart.space.rotation[1];
    }
}

TEST_F(AxisTitlesTest, AtARightAngleNoEdgeIsInFront) {
    chart.space.rotation = {-0.5F, 0.0F, 0.0F};
    const auto titles = Titles();
    EXPECT_EQ(titles[2].side, TextSide::kLeft);
    EXPECT_EQ(titles[3].side, TextSide::kRight);
    const ReferencePlace x = Seen({0.5F, 1.0F, 0.0F}), depth = Seen({0.0F, 0.5F, 0.0F});
    ExpectNear(titles[2], x.x, x.y - 40);
    ExpectNear(titles[3], depth.x + 40, depth.y);
    const ReferencePlace right = Seen({1.0F, 0.0F, 0.5F}), left = Seen({0.0F, 1.0F, 0.5F});
    ExpectNear(titles[0], right.x + 60, right.y);
    ExpectNear(titles[1], left.x - 60, left.y);
}

TEST_F(AxisTitlesTest, AnEdgeSeenEndOnHasItsTitleAtItsMiddle) {
    chart.space.rotation = {0.0F, 0.0F, 0.0F};
    const ReferencePlace depth = Seen({0.0F, 0.5F, 0.0F});
    ExpectNear(Titles()[3], depth.x, depth.y);
    chart.space.ranges.fill({3.0F, 3.0F});
    for (const AxisTitle& title : Titles()) {
        if (title.isTurned) continue;
        ExpectNear(title, depth.x, depth.y);
    }
}

}  // namespace
}  // namespace corvex
