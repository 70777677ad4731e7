// A signal that wakes one waiter and is then gone.
#pragma once

#include <condition_variable>
#include <mutex>

namespace corvex {

// Callable from any thread. Setting a set event changes nothing: two Sets before a wait wake one waiter.
class AutoResetEvent {
public:
    explicit AutoResetEvent(bool signalled) : signalled_(signalled) {}
    AutoResetEvent(const AutoResetEvent&) = delete;
    AutoResetEvent& operator=(const AutoResetEvent&) = delete;

    void Set() {
        const std::lock_guard lock(mutex_);
        signalled_ = true;
        wake_.notify_one();
    }

    void Reset() {
        const std::lock_guard lock(mutex_);
        signalled_ = false;
    }

    // Blocks without limit and takes the signal.
    void Wait() {
        std::unique_lock lock(mutex_);
        wake_.wait(lock, [this] { return signalled_; });
        signalled_ = false;
    }

    // Takes the signal if it is there; never blocks.
    bool TryWait() {
        const std::lock_guard lock(mutex_);
        const bool taken = signalled_;
        signalled_ = false;
        return taken;
    }

private:
    std::mutex mutex_;
    std::condition_variable wake_;
    bool signalled_;
};

}  // namespace corvex
