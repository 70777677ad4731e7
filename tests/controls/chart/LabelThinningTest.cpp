#include <gtest/gtest.h>

#include <algorithm>
#include <bitset>
#include <random>
#include <string>

#include "controls/chart/LabelThinning.h"

namespace corvex {
namespace {

std::string Show(const YUpBox& box) {
    return std::to_string(box.corner.x) + "," + std::to_string(box.corner.y) + " " + std::to_string(box.opposite.x) +
           "," + std::to_string(box.opposite.y);
}

TEST(LabelThinningTest, ABoxStandsBesideItsPlace) {
    EXPECT_EQ(Show(LabelBox({100, 50}, TextSide::kRight, {30, 14})), "100,43 130,57");
    EXPECT_EQ(Show(LabelBox({100, 50}, TextSide::kLeft, {30, 14})), "70,43 100,57");
    EXPECT_EQ(Show(LabelBox({100, 50}, TextSide::kCentred, {31, 15})), "85,42 116,57");
}

TEST(LabelThinningTest, LeavesOutWhatLiesOnTheLastOneThatIsDrawn) {
    LabelThinning labels;
    EXPECT_TRUE(labels.Takes({{0, 0}, {40, 14}}));
    EXPECT_FALSE(labels.Takes({{25, 0}, {65, 14}}));
    EXPECT_TRUE(labels.Takes({{50, 0}, {90, 14}})) << "it only lies on one that is not drawn";
    EXPECT_EQ(Show(*labels.Last()), "51,3 89,11");
}

// The same rule by the pixels that the labels cover.
TEST(LabelThinningTest, ThinsRandomRowsByTheRule) {
    constexpr int kSide = 64;
    using Pixels = std::bitset<kSide * kSide>;
    const auto pixelsOf = [](const YUpBox& box, int beside, int above) {
        const auto [left, right] = std::minmax(box.corner.x, box.opposite.x);
        const auto [bottom, top] = std::minmax(box.corner.y, box.opposite.y);
        Pixels pixels;
        for (int y = bottom + above; y < top - above; ++y) {
            for (int x = left + beside; x < right - beside; ++x)
                pixels.set(static_cast<std::size_t>(y * kSide + x));
        }
        return pixels;
    };
    std::mt19937 random(3);
    const auto pick = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    const auto anyBox = [&pick] {
        const int x = pick(40), y = pick(40), width = 3 + pick(20), height = 7 + pick(16);
        return pick(2) == 0 ? YUpBox{{x, y}, {x + width, y + height}} : YUpBox{{x + width, y}, {x, y + height}};
    };
    int taken = 0;
    for (int row = 0; row < 200; ++row) {
        const YUpBox other = anyBox();
        LabelThinning labels(other);
        Pixels last;
        for (int i = 0; i < 12; ++i) {
            const YUpBox box = anyBox();
            const Pixels pixels = pixelsOf(box, 1, 3);
            const bool fits = (pixels & (pixelsOf(other, 0, 0) | last)).none();
            ASSERT_EQ(labels.Takes(box), fits) << Show(box);
            if (fits) last = pixels;
            taken += fits ? 1 : 0;
        }
    }
    EXPECT_GT(taken, 500);
    EXPECT_LT(taken, 2000);
}

}  // namespace
}  // namespace corvex
