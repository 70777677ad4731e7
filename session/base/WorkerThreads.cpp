#include "session/base/WorkerThreads.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace corvex {

struct WorkerThreads::Count {
    std::mutex mutex;
    std::condition_variable idle;
    unsigned running = 0;

    void Enter() {
        const std::lock_guard lock(mutex);
        ++running;
    }
    void Leave() {
        const std::lock_guard lock(mutex);
        if (--running == 0) idle.notify_all();
    }
};

WorkerThreads::WorkerThreads() : count_(std::make_shared<Count>()) {}

WorkerThreads::~WorkerThreads() = default;

bool WorkerThreads::Start(std::function<void()> body) {
    // Counted before it exists, so that a wait begun right after this call sees it.
    count_->Enter();
    try {
        std::thread([count = count_, work = std::move(body)]() mutable {
            work();
            work = nullptr;  // what the body holds goes before the count says that the thread is done
            count->Leave();
        }).detach();
    } catch (const std::system_error&) {
        count_->Leave();
        return false;
    }
    return true;
}

void WorkerThreads::Wait() const {
    std::unique_lock lock(count_->mutex);
    count_->idle.wait(lock, [this] { return count_->running == 0; });
}

bool WorkerThreads::Wait(std::chrono::milliseconds limit) const {
    std::unique_lock lock(count_->mutex);
    return count_->idle.wait_for(lock, limit, [this] { return count_->running == 0; });
}

}  // namespace corvex
