#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "controls/chart/TickList.h"

namespace corvex {
namespace {

constexpr float kHuge = std::numeric_limits<float>::max();

std::string Show(const TickList& ticks) {
    std::string text;
    for (const TickEntry& tick : ticks.All())
        text += (text.empty() ? "" : " ") + std::to_string(tick.value).substr(0, 6) + "=" + tick.label;
    return text;
}

TEST(TickListTest, SpreadsFromOneEndToTheOther) {
    TickList ticks;
    ticks.Spread(6, {0.0F, 255.0F}, nullptr);
    EXPECT_EQ(Show(ticks), "0.0000=0.00 51.000=51.00 102.00=102.00 153.00=153.00 204.00=204.00 255.00=255.00");
    ticks.Spread(3, {10.0F, -10.0F}, nullptr);
    EXPECT_EQ(Show(ticks), "10.000=10.00 0.0000=0.00 -10.00=-10.00");
    ticks.Spread(2, {4.0F, 4.0F}, nullptr);
    EXPECT_EQ(Show(ticks), "4.0000=4.00 4.0000=4.00");
    ticks.Spread(1, {7.5F, 9.0F}, nullptr);
    EXPECT_EQ(Show(ticks), "7.5000=7.50");
    for (const int none : {0, -1, std::numeric_limits<int>::min(), static_cast<int>(TickList::kMaxTicks) + 1}) {
        ticks.Spread(2, {}, nullptr);
        ticks.Spread(none, {}, nullptr);
        EXPECT_EQ(ticks.Count(), 0u) << none;
    }
}

TEST(TickListTest, FollowsAnEvenDivision) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> value(-1000.0F, 1000.0F);
    for (int count = 2; count < 100; ++count) {
        const ChartRange range{value(random), value(random)};
        TickList ticks;
        ticks.Spread(count, range, nullptr);
        double place = range.minimum;
        for (const TickEntry& tick : ticks.All()) {
            EXPECT_NEAR(tick.value, place, 1e-3);
            place += (static_cast<double>(range.maximum) - range.minimum) / (count - 1);
        }
    }
}

TEST(TickListTest, HugeRangesAreSpreadWithoutAnOverflow) {
    TickList ticks;
    ticks.Spread(5, {-kHuge, kHuge}, nullptr);
    EXPECT_EQ(ticks.At(3)->value, kHuge / 2.0F);
    EXPECT_EQ(ticks.At(4)->label, "340282346638528859811704183484516925440.") << "the first 40 bytes";
}

TEST(TickListTest, AsksForALabelBeforeItWritesTheNumber) {
    TickList ticks;
    ticks.Spread(3, {0.0F, 2.0F}, [](float value, std::string& label) {
        label = std::string(50, 'n');
        return value == 1.0F;
    });
    EXPECT_EQ(Show(ticks), "0.0000=0.00 1.0000=" + std::string(TickList::kLabelLength, 'n') + " 2.0000=2.00");
}

TEST(TickListTest, ACountKeepsWhatFitsIn) {
    TickList ticks;
    ticks.Spread(3, {0.0F, 2.0F}, nullptr);
    ticks.SetCount(1);
    ticks.SetCount(2);
    EXPECT_EQ(Show(ticks), "0.0000=0.00 0.0000=") << "the new one is empty";
    ticks.SetCount(TickList::kMaxTicks);
    EXPECT_EQ(ticks.Count(), TickList::kMaxTicks);
    ticks.SetCount(TickList::kMaxTicks + 1);
    EXPECT_EQ(ticks.Count(), TickList::kMaxTicks);
}

TEST(TickListTest, SetsWhatIsInRange) {
    TickList ticks;
    ticks.SetCount(2);
    ticks.Set(1, 5.0F, std::string(41, 'x'));
    ticks.Set(2, 6.0F, "beyond");
    EXPECT_EQ(Show(ticks), "0.0000= 5.0000=" + std::string(40, 'x'));
    EXPECT_EQ(ticks.At(1), &ticks.All()[1]);
    EXPECT_EQ(ticks.At(2), nullptr);
    ticks.Clear();
    EXPECT_EQ(ticks.At(0), nullptr);
}

TEST(TickListTest, CountsTheTicksThatAnAxisHasRoomFor) {
    EXPECT_EQ(TicksOf(255.0F, 50), 6);
    EXPECT_EQ(TicksOf(249.9F, 50), 5);
    EXPECT_EQ(TicksOf(0.0F, 50), 1);
    EXPECT_EQ(TicksOf(-1.0F, 50), 0);
    EXPECT_EQ(TicksOf(255.0F, 0), 0);
    EXPECT_EQ(TicksOf(255.0F, -50), 0);
    EXPECT_EQ(TicksOf(std::nanf(""), 50), 0);
    EXPECT_EQ(TicksOf(kHuge, 1), static_cast<int>(TickList::kMaxTicks));
    EXPECT_EQ(TicksOf(HUGE_VALF, 65535), static_cast<int>(TickList::kMaxTicks));
}

}  // namespace
}  // namespace corvex
