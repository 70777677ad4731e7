// Starts threads that nobody waits for one by one, and knows how many still run.
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <thread>

namespace corvex {

// Callable from any thread but a worker's own waits: a worker that waits for all workers waits for itself.
class WorkerThreads {
public:
    WorkerThreads();
    // Does not wait: the owner does, while what the workers touch still lives.
    ~WorkerThreads();
    WorkerThreads(const WorkerThreads&) = delete;
    WorkerThreads& operator=(const WorkerThreads&) = delete;

    // False when the system has no thread to give; the body is then not run.
    [[nodiscard]] bool Start(std::function<void()> body);

    // Blocks until no worker runs. What the workers wrote is visible afterwards.
    void Wait() const;
    // The same with a limit; false when some worker still ran at its end.
    [[nodiscard]] bool Wait(std::chrono::milliseconds limit) const;

private:
    // Shared with the threads, whose last act is on it and not on the owner.
    struct Count;
    struct Worker {
        std::thread thread;
        std::shared_ptr<std::atomic<bool>> done;
    };

    std::shared_ptr<Count> count_;
    std::mutex lock_;
    std::list<Worker> workers_;  // under lock_; those that are done go with the next start
};

}  // namespace corvex
