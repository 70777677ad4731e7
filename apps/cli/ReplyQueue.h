// Carries replies from the connect thread, or a log's playback thread, to the main thread.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <vector>

#include "session/diagnosis/ReplyEvent.h"

namespace corvex {

// Any thread may push and wake; one thread takes.
class ReplyQueue {
public:
    // A line waits for nobody: a slow terminal never slows it, and what finds no room is dropped. A log does wait: a
    // push returns when its reply has been dealt with, so that what is shown of it is computed from no later record.
    enum class Pace { kLine, kLog };

    explicit ReplyQueue(Pace pace = Pace::kLine) : waits_(pace == Pace::kLog) {}

    // Replies that wait when nobody takes them: some five minutes of a fast line.
    static constexpr std::size_t kLimit = 4096;

    void Push(ReplyEvent event);
    // Ends a wait early, or the next one when nobody waits.
    void Wake();
    // Waits until there is something, or somebody wakes it, or `limit` has passed; takes all there is, oldest first.
    // What was taken before has been dealt with.
    std::vector<ReplyEvent> Take(std::chrono::milliseconds limit);
    // Nobody takes any more, and nobody waits for it.
    void Close();
    // Replies thrown away because the queue was full.
    std::uint32_t Dropped() const;

private:
    mutable std::mutex lock_;
    std::condition_variable filled_, done_;
    std::deque<ReplyEvent> events_;
    const bool waits_;
    bool woken_ = false, closed_ = false;
    std::uint64_t pushed_ = 0, taken_ = 0, handled_ = 0;
    std::uint32_t dropped_ = 0;
};

}  // namespace corvex
