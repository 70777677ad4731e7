#include <gtest/gtest.h>

#include "session/base/AutoResetEvent.h"
#include "session/base/WorkerThreads.h"

namespace corvex::test {
namespace {

using std::chrono::milliseconds;

TEST(WorkerThreadsTest, WaitReturnsAtOnceWithoutWorkers) {
    const WorkerThreads workers;
    workers.Wait();
    EXPECT_TRUE(workers.Wait(milliseconds(0)));
}

TEST(WorkerThreadsTest, WaitEndsWithTheLastWorker) {
    WorkerThreads workers;
    AutoResetEvent first(false), second(false);
    int done = 0;  // written by the workers in turn, read after the wait: no other lock
    ASSERT_TRUE(workers.Start([&] {
        first.Wait();
        ++done;
        second.Set();
    }));
    ASSERT_TRUE(workers.Start([&] {
        second.Wait();
        ++done;
    }));
    EXPECT_FALSE(workers.Wait(milliseconds(1)));
    first.Set();
    workers.Wait();
    EXPECT_EQ(2, done);
}

// The thread's last act is on what it shares, so the object may go as soon as its wait has ended.
TEST(WorkerThreadsTest, ObjectMayGoRightAfterTheWait) {
    for (int round = 0; round < 200; ++round) {
        WorkerThreads workers;
        ASSERT_TRUE(workers.Start([] {}));
        workers.Wait();
    }
}

TEST(WorkerThreadsTest, BodyIsGoneWhenTheWaitEnds) {
    WorkerThreads workers;
    const auto held = std::make_shared<int>(1);
    ASSERT_TRUE(workers.Start([copy = held] { EXPECT_EQ(1, *copy); }));
    workers.Wait();
    EXPECT_EQ(1, held.use_count());
}

}  // namespace
}  // namespace corvex::test
