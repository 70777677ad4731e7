#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "platform/Clock.h"
#include "tests/support/VirtualClock.h"

namespace corvex {

using test::VirtualClock;

TEST(ClockTest, TheSystemsCounterRunsForward) {
    IClock& clock = SystemClock();
    EXPECT_GE(clock.Frequency(), 1'000'000);
    const std::int64_t first = clock.Counter();
    EXPECT_GE(clock.Counter(), first);
    EXPECT_EQ(&CurrentClock(), &clock);
}

TEST(ClockTest, AScopedClockIsInForceForItsLifetime) {
    VirtualClock outer, inner;
    {
        const ScopedClock first(outer);
        EXPECT_EQ(&CurrentClock(), &outer);
        {
            const ScopedClock second(inner);
            EXPECT_EQ(&CurrentClock(), &inner);
        }
        EXPECT_EQ(&CurrentClock(), &outer);
    }
    EXPECT_EQ(&CurrentClock(), &SystemClock());
}

TEST(ClockTest, SleepsUntilTheMomentAndNeverLess) {
    IClock& clock = SystemClock();
    for (const std::int64_t part : {100'000, 2'000, 200, 20}) {  // parts of a second: 10 us to 50 ms
        const std::int64_t moment = clock.Counter() + clock.Frequency() / part;
        SleepUntil(moment);
        EXPECT_GE(clock.Counter(), moment);
    }
}

TEST(ClockTest, AMomentThatHasPassedNeedsNoSleep) {
    SleepUntil(SystemClock().Counter());
    SleepUntil(0);
    SleepUntil(-1);
}

// From several threads at once: on Windows they share what they wait with.
TEST(ClockTest, AMillisecondIsSleptAwayByAnyThread) {
    IClock& clock = SystemClock();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&clock] {
            const std::int64_t start = clock.Counter();
            for (int n = 0; n < 20; ++n)
                SleepOneMillisecond();
            EXPECT_GE(clock.Counter() - start, 20 * clock.Frequency() / 2000);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

TEST(ClockTest, LocalTimeIsAPossibleOne) {
    const LocalTime now = CurrentLocalTime();
    EXPECT_GE(now.year, 2024);
    EXPECT_GE(now.month, 1);
    EXPECT_LE(now.month, 12);
    EXPECT_LE(now.dayOfWeek, 6);
    EXPECT_GE(now.day, 1);
    EXPECT_LE(now.day, 31);
    EXPECT_LE(now.hour, 23);
    EXPECT_LE(now.minute, 59);
    EXPECT_LE(now.second, 60);
    EXPECT_LE(now.milliseconds, 999);
}

}  // namespace corvex
