// Brings a recording to the disk while it goes on, so that a power cut costs its last second or two and not what the
// system kept back.
#pragma once

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>

#include "platform/File.h"

namespace corvex {

class WorkerThreads;

// Once a second, when there is something new, a sync begins. A disk may take longer than that for one, so several run
// at once: no sample waits for more than a second for one that begins after it. A disk that has fallen behind by
// kMostAtOnce of them gets no more until one is done.
//
// Shared with its threads; Note and End from any thread.
class RecordingSync : public std::enable_shared_from_this<RecordingSync> {
public:
    static constexpr unsigned kMostAtOnce = 8;

    explicit RecordingSync(std::unique_ptr<IFileSync> file) : file_(std::move(file)) {}

    // On threads of `workers`, which outlive this: they are waited for to have the last sync done. False when the
    // system has no thread to give: nothing is synced then.
    [[nodiscard]] bool Begin(WorkerThreads& workers);
    // Something was written. Never waits.
    void Note() { news_.store(true, std::memory_order_release); }
    // Nothing more will be: one more sync, and the threads end. Does not wait for that.
    void End();
    // From the first sync on that the system said no to.
    bool Failed() const { return failed_.load(std::memory_order_relaxed); }

private:
    void Pace(WorkerThreads& workers);
    void StartSync(WorkerThreads& workers);
    void SyncNews();

    std::unique_ptr<IFileSync> file_;  // of the threads; gone when they are
    std::atomic<bool> news_{false}, failed_{false};
    std::mutex lock_;
    std::condition_variable changed_;
    bool ended_ = false;    // under lock_
    unsigned running_ = 0;  // under lock_
};

}  // namespace corvex
