#include <gtest/gtest.h>

#include "platform/SerialTimes.h"

namespace corvex {

TEST(SerialTimesTest, ReadsHaveAGapAndATotal) {
    const struct {
        const char* behaviour;
        SerialTimeouts timeouts;
        std::uint32_t count;
        std::optional<std::int64_t> gap, total;
        bool immediate, firstBytesEndIt;
    } cases[] = {
        {"an interval and a constant", {75, 0, 200, 0, 300}, 63, 75, 200, false, false},
        {"the multiplier counts for each byte", {20, 10, 100, 0, 0}, 5, 20, 150, false, false},
        {"that is asked for", {20, 10, 100, 0, 0}, 20, 20, 300, false, false},
        {"more than 32 bits hold", {1, 0xFFFFFFFE, 5, 0, 0}, 4, 1, 4 * 0xFFFFFFFELL + 5, false, false},
        {"no interval, no gap", {0, 0, 200, 0, 0}, 5, std::nullopt, 200, false, false},
        {"zeros, no total", {75, 0, 0, 0, 0}, 5, 75, std::nullopt, false, false},
        {"the largest interval alone returns at once",
         {kNoGapLimit, 0, 0, 0, 0},
         5,
         std::nullopt,
         std::nullopt,
         true,
         false},
        {"not with a constant", {kNoGapLimit, 0, 10, 0, 0}, 5, std::nullopt, 10, false, false},
        {"the largest two wait for the first bytes",
         {kNoGapLimit, kNoGapLimit, 100, 0, 0},
         5,
         std::nullopt,
         100,
         false,
         true},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.behaviour);
        const ReadLimits limits = LimitsOfRead(one.timeouts, one.count);
        EXPECT_EQ(limits.gap, one.gap);
        EXPECT_EQ(limits.total, one.total);
        EXPECT_EQ(limits.immediate, one.immediate);
        EXPECT_EQ(limits.firstBytesEndIt, one.firstBytesEndIt);
    }
}

TEST(SerialTimesTest, WritesHaveATotalAlone) {
    EXPECT_EQ(LimitOfWrite({0, 0, 0, 0, 300}, 5), 300);
    EXPECT_EQ(LimitOfWrite({0, 0, 0, 2, 10}, 5), 20);
    EXPECT_FALSE(LimitOfWrite({75, 0, 200, 0, 0}, 5).has_value());
}

}  // namespace corvex
