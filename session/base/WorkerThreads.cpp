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

WorkerThreads::~WorkerThreads() {
    for (Worker& worker : workers_) {
        if (*worker.done)
            worker.thread.join();
        else
            worker.thread.detach();
    }
}

// Threads are joined when they are done, and not detached at their start: a thread that is detached while it begins is
// now and then lost on Windows with this toolchain's thread library.
bool WorkerThreads::Start(std::function<void()> body) {
    const std::lock_guard lock(lock_);
    workers_.remove_if([](Worker& worker) {
        if (!*worker.done) return false;
        worker.thread.join();
        return true;
    });
    const auto done = std::make_shared<std::atomic<bool>>(false);
    // Counted before it exists, so that a wait begun right after this call sees it.
    count_->Enter();
    try {
        workers_.push_back({std::thread([count = count_, done, work = std::move(body)]() mutable {
                                work();
                                work = nullptr;  // what the body holds goes before the count says that it is done
                                *done = true;
                                count->Leave();
                            }),
                            done});
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
