#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "session/base/AutoResetEvent.h"

namespace corvex::test {
namespace {

TEST(AutoResetEventTest, TwoSignalsAreOneThatWaitOrResetTakes) {
    AutoResetEvent event(true);
    event.Wait();
    EXPECT_FALSE(event.TryWait());
    event.Set();
    event.Set();
    EXPECT_TRUE(event.TryWait());
    EXPECT_FALSE(event.TryWait());
    event.Set();
    event.Reset();
    EXPECT_FALSE(event.TryWait());
}

// A waiter that passes the signal on lets every other through in turn.
TEST(AutoResetEventTest, OneSignalWakesAllWhenEachPassesItOn) {
    AutoResetEvent event(false);
    std::atomic<int> passed{0};
    auto waiter = [&] {
        event.Wait();
        ++passed;
        event.Set();
    };
    std::thread first(waiter), second(waiter), third(waiter);
    EXPECT_EQ(0, passed);
    event.Set();
    first.join();
    second.join();
    third.join();
    EXPECT_EQ(3, passed);
    EXPECT_TRUE(event.TryWait());
}

}  // namespace
}  // namespace corvex::test
