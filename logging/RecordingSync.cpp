#include "logging/RecordingSync.h"

#include <chrono>

#include "session/base/WorkerThreads.h"

namespace corvex {

bool RecordingSync::Begin(WorkerThreads& workers) {
    return workers.Start([self = shared_from_this(), &workers] { self->Pace(workers); });
}

void RecordingSync::End() {
    const std::lock_guard lock(lock_);
    ended_ = true;
    changed_.notify_all();
}

void RecordingSync::Pace(WorkerThreads& workers) {
    std::unique_lock lock(lock_);
    while (!changed_.wait_for(lock, std::chrono::seconds(1), [this] { return ended_; })) {
        if (running_ < kMostAtOnce && news_.load(std::memory_order_relaxed)) StartSync(workers);
    }
    lock.unlock();
    SyncNews();
    lock.lock();
    changed_.wait(lock, [this] { return running_ == 0; });
    file_.reset();  // while it is held open it cannot be moved, nor written by another
}

// Under the lock. Without a thread to give the news wait for the next second.
void RecordingSync::StartSync(WorkerThreads& workers) {
    ++running_;
    const bool started = workers.Start([self = shared_from_this()] {
        self->SyncNews();
        const std::lock_guard lock(self->lock_);
        --self->running_;
        self->changed_.notify_all();
    });
    if (!started) --running_;
}

void RecordingSync::SyncNews() {
    news_.exchange(false, std::memory_order_acquire);  // what comes from here on is for the next one
    if (!file_->Sync()) failed_ = true;
}

}  // namespace corvex
