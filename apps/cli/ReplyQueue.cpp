#include "apps/cli/ReplyQueue.h"

#include <iterator>
#include <utility>

namespace corvex {

void ReplyQueue::Push(ReplyEvent event) {
    std::unique_lock lock(lock_);
    if (events_.size() == kLimit) {
        ++dropped_;
        return;
    }
    events_.push_back(std::move(event));
    const std::uint64_t number = ++pushed_;
    filled_.notify_one();
    if (waits_) done_.wait(lock, [&] { return closed_ || handled_ >= number; });
}

void ReplyQueue::Close() {
    {
        const std::lock_guard lock(lock_);
        closed_ = true;
    }
    done_.notify_all();
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
    handled_ = taken_;
    done_.notify_all();
    filled_.wait_for(lock, limit, [this] { return woken_ || !events_.empty(); });
    woken_ = false;
    std::vector<ReplyEvent> taken(std::make_move_iterator(events_.begin()), std::make_move_iterator(events_.end()));
    events_.clear();
    taken_ += taken.size();
    return taken;
}

std::uint32_t ReplyQueue::Dropped() const {
    const std::lock_guard lock(lock_);
    return dropped_;
}

}  // namespace corvex
