#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "apps/cli/ReplyQueue.h"

namespace corvex {
namespace {

using namespace std::chrono_literals;

ReplyEvent At(double t) {
    ReplyEvent event;
    event.t = t;
    return event;
}

TEST(ReplyQueueTest, DropsWhatALineBringsWhenNobodyTakes) {
    ReplyQueue queue;
    for (std::size_t i = 0; i < ReplyQueue::kLimit + 3; ++i)
        queue.Push(At(static_cast<double>(i)));
    EXPECT_EQ(queue.Dropped(), 3U);
    const auto taken = queue.Take(0ms);
    ASSERT_EQ(taken.size(), ReplyQueue::kLimit);
    EXPECT_EQ(taken.front().t, 0.0);
}

// The log is never ahead of what is being shown: a later record would change the values behind its back.
TEST(ReplyQueueTest, HoldsALogUntilEachReplyWasDealtWith) {
    ReplyQueue queue(ReplyQueue::Pace::kLog);
    std::atomic<int> record{-1};
    std::thread log([&] {
        for (int i = 0; i < 2000; ++i) {
            record = i;
            queue.Push(At(i));
        }
    });
    int next = 0, ahead = 0;
    while (next < 2000) {
        const auto taken = queue.Take(1000ms);
        if (taken.empty()) continue;
        next = static_cast<int>(taken.back().t) + 1;
        for (int look = 0; look < 50; ++look)
            ahead += record != taken.front().t ? 1 : 0;
    }
    EXPECT_EQ(ahead, 0);
    queue.Close();
    log.join();
    EXPECT_EQ(queue.Dropped(), 0U);
}

TEST(ReplyQueueTest, LetsALogGoWhenItIsClosed) {
    ReplyQueue queue(ReplyQueue::Pace::kLog);
    std::thread log([&] {
        queue.Push(At(1));
        queue.Push(At(2));
    });
    queue.Close();
    log.join();
    EXPECT_EQ(queue.Take(0ms).size(), 2U);
}

}  // namespace
}  // namespace corvex
