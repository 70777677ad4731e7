#include <gtest/gtest.h>

#include "platform/SerialTimes.h"

namespace corvex {

TEST(SerialTimesTest, AnIntervalAndAConstantLimitTheGapAndTheWhole) {
    const ReadLimits limits = LimitsOfRead({75, 0, 200, 0, 300}, 63);
    EXPECT_EQ(limits.gap, 75);
    EXPECT_EQ(limits.total, 200);
    EXPECT_FALSE(limits.immediate);
    EXPECT_FALSE(limits.firstBytesEndIt);
}

TEST(SerialTimesTest, TheMultiplierCountsForEachByteAskedFor) {
    EXPECT_EQ(LimitsOfRead({20, 10, 100, 0, 0}, 5).total, 150);
    EXPECT_EQ(LimitsOfRead({20, 10, 100, 0, 0}, 20).total, 300);
    // More milliseconds than 32 bits hold.
    EXPECT_EQ(LimitsOfRead({0, 0xFFFFFFFE, 5, 0, 0}, 4).total, 4 * 0xFFFFFFFELL + 5);
}

TEST(SerialTimesTest, ZerosSwitchALimitOff) {
    EXPECT_FALSE(LimitsOfRead({0, 0, 200, 0, 0}, 5).gap.has_value());
    EXPECT_FALSE(LimitsOfRead({75, 0, 0, 0, 0}, 5).total.has_value());
    EXPECT_FALSE(LimitOfWrite({75, 0, 200, 0, 0}, 5).has_value());
}

TEST(SerialTimesTest, TheLargestIntervalAloneReturnsAtOnce) {
    EXPECT_TRUE(LimitsOfRead({kNoGapLimit, 0, 0, 0, 0}, 5).immediate);
    EXPECT_FALSE(LimitsOfRead({kNoGapLimit, 0, 10, 0, 0}, 5).immediate);
}

TEST(SerialTimesTest, TheLargestIntervalAndMultiplierWaitForTheFirstBytes) {
    const ReadLimits limits = LimitsOfRead({kNoGapLimit, kNoGapLimit, 100, 0, 0}, 5);
    EXPECT_TRUE(limits.firstBytesEndIt);
    EXPECT_EQ(limits.total, 100);
}

TEST(SerialTimesTest, WritesHaveATotalAlone) {
    EXPECT_EQ(LimitOfWrite({0, 0, 0, 0, 300}, 5), 300);
    EXPECT_EQ(LimitOfWrite({0, 0, 0, 2, 10}, 5), 20);
}

}  // namespace corvex
