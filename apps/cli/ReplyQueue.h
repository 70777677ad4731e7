// Carries replies from the connect thread to the main thread, so that a slow terminal never slows the line.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <vector>

#include "apps/cli/ReplyEvent.h"

namespace corvex {

// Any thread may push and wake; one thread takes.
class ReplyQueue {
public:
    // Replies that wait when nobody takes them: some five minutes of a fast line.
    static constexpr std::size_t kLimit = 4096;

    void Push(ReplyEvent event);
    // Ends a wait early, or the next one when nobody waits.
    void Wake();
    // Waits until there is something, or somebody wakes it, or `limit` has passed; takes all there is, oldest first.
    std::vector<ReplyEvent> Take(std::chrono::milliseconds limit);
    // Replies thrown away because the queue was full.
    std::uint32_t Dropped() const;

private:
    mutable std::mutex lock_;
    std::condition_variable filled_;
    std::deque<ReplyEvent> events_;
    bool woken_ = false;
    std::uint32_t dropped_ = 0;
};

}  // namespace corvex
