#include "apps/cli/ReplyQueue.h"

#include <iterator>
#include <utility>

namespace corvex {

void ReplyQueue::Push(ReplyEvent event) {
    {
        const std::lock_guard lock(lock_);
        if (events_.size() == kLimit) {
            ++dropped_;
            return;
        }
        events_.push_back(std::move(event));
    }
    filled_.notify_one();
}

void ReplyQueue::Wake() {
    {
        const std::lock_guard lock(lock_);
        woken_ = true;
    }
    filled_.notify_one();
}

std::vector<ReplyEvent> ReplyQueue::Take(std::chrono::milliseconds limit) {
    std::unique_lock lock(lock_);
    filled_.wait_for(lock, limit, [this] { return woken_ || !events_.empty(); });
    woken_ = false;
    std::vector<ReplyEvent> taken(std::make_move_iterator(events_.begin()), std::make_move_iterator(events_.end()));
    events_.clear();
    return taken;
}

std::uint32_t ReplyQueue::Dropped() const {
    const std::lock_guard lock(lock_);
    return dropped_;
}

}  // namespace corvex
