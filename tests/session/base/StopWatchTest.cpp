#include <gtest/gtest.h>

#include <cmath>
#include <thread>

#include "session/base/StopWatch.h"
#include "tests/support/Listed.h"
#include "tests/support/VirtualClock.h"

namespace corvex {

using test::VirtualClock;

namespace {

class StopWatchTest : public ::testing::Test {
protected:
    StopWatchTest() : scope_(clock_) { clock_.AdvanceMilliseconds(10'000); }

    VirtualClock clock_{1024};  // a power of two: the seconds come out exact
    ScopedClock scope_;
};

TEST_F(StopWatchTest, BeginsAtTheMomentOfConstruction) {
    const StopWatch watch;
    EXPECT_EQ(test::Listed(watch.createdAt, watch.createdAt2, watch.markAt, watch.startedAt, watch.rateAt),
              "10 10 10 10 10");
    EXPECT_EQ(test::Listed(watch.pausedAt, watch.paused, watch.tickCount, watch.rate, watch.Elapsed()), "0 0 0 0 0");
    EXPECT_EQ(watch.frequency, 1024);
}

TEST_F(StopWatchTest, CountsSecondsFromTheLastRestart) {
    StopWatch watch;
    clock_.Advance(1024 + 512);
    EXPECT_EQ(watch.Elapsed(), 1.5);
    EXPECT_EQ(watch.Current(), 11.5);
    watch.Restart();
    EXPECT_EQ(watch.startedAt, 11.5);
    EXPECT_EQ(watch.markAt, 11.5);
    EXPECT_EQ(watch.Elapsed(), 0.0);
}

TEST_F(StopWatchTest, ElapsedRunsOnThroughAPauseFromWhichCurrentRestarts) {
    StopWatch watch;
    clock_.Advance(1024);
    watch.Pause();
    clock_.Advance(2048);
    EXPECT_EQ(watch.Elapsed(), 3.0);
    EXPECT_EQ(watch.Current(), 11.0);
    for (int pauses = 0; pauses < 2; ++pauses) {  // a second one changes nothing
        EXPECT_EQ(test::Listed(watch.markAt, watch.pausedAt, watch.paused), "11 11 1");
        watch.Pause();
    }
    watch.Restart();
    EXPECT_EQ(test::Listed(watch.startedAt, watch.markAt, watch.paused, watch.pausedAt, watch.Elapsed()),
              "11 11 0 0 2");
}

TEST_F(StopWatchTest, RateIsComputedAfterMoreThanHalfASecond) {
    StopWatch watch;
    watch.tickCount = 6;
    clock_.Advance(512);  // exactly half a second does not count
    EXPECT_EQ(watch.Rate(), 0.0F);
    EXPECT_EQ(watch.tickCount, 6U);
    clock_.Advance(256);
    EXPECT_EQ(watch.Rate(), 8.0F);
    EXPECT_EQ(watch.tickCount, 0U);
    EXPECT_EQ(watch.rateAt, 10.75);
    watch.tickCount = 3;
    watch.Pause();  // neither touches the rate, which stays for the next half second
    watch.Restart();
    clock_.Advance(500);
    EXPECT_EQ(watch.Rate(), 8.0F);
    EXPECT_EQ(watch.tickCount, 3U);
    EXPECT_EQ(watch.rateAt, 10.75);
    watch.tickCount = 0x80000000U;  // no sign
    clock_.Advance(1024);
    EXPECT_GT(watch.Rate(), 1e9F);
}

TEST_F(StopWatchTest, NoTickIsLostWhileTheRateIsRead) {
    StopWatch watch;
    std::thread counter([&] {
        for (int i = 0; i < 10'000; ++i)
            watch.tickCount.fetch_add(1, std::memory_order_relaxed);
    });
    double counted = 0;
    for (int i = 0; i < 100; ++i) {
        clock_.Advance(1024);
        counted += static_cast<double>(watch.Rate());
    }
    counter.join();
    clock_.Advance(1024);
    counted += static_cast<double>(watch.Rate());
    EXPECT_EQ(counted, 10'000.0);
}

TEST(StopWatchWithoutCounterTest, DividesByZeroAndCarriesOn) {
    VirtualClock none(0);
    none.Advance(5);
    const ScopedClock scope(none);
    StopWatch watch;
    EXPECT_FALSE(std::isfinite(watch.Current()));
    EXPECT_FALSE(std::isfinite(watch.Elapsed()));
    EXPECT_EQ(watch.Rate(), 0.0F);
}

}  // namespace

}  // namespace corvex
