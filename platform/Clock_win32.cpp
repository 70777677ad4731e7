#include <algorithm>
#include <atomic>
#include <mutex>
#include <vector>

#include "platform/Clock.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

// Timers that wake within a fraction of a millisecond where Windows has them (10, version 1803, and later); an ordinary
// wait may be late by a whole tick of 15.6 ms. They are kept for the next who waits, since to make one costs as much as
// to wait with it; of one at a time for each thread that waits there are never many.
class TimerStore {
public:
    // Null where there are none.
    HANDLE Take() {
        {
            const std::lock_guard lock(lock_);
            if (none_) return nullptr;
            if (!idle_.empty()) {
                const HANDLE timer = idle_.back();
                idle_.pop_back();
                return timer;
            }
        }
        const HANDLE timer =
            CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, SYNCHRONIZE | TIMER_MODIFY_STATE);
        if (timer == nullptr && GetLastError() == ERROR_INVALID_PARAMETER) none_ = true;
        return timer;
    }
    void GiveBack(HANDLE timer) {
        const std::lock_guard lock(lock_);
        idle_.push_back(timer);
    }

private:
    static constexpr DWORD kHighResolution = 2;

    std::mutex lock_;
    std::vector<HANDLE> idle_;
    std::atomic<bool> none_{false};
};

// Never destroyed: threads may wait while the program's statics go.
TimerStore& Timers() {
    static auto* const store = new TimerStore;
    return *store;
}

class FineTimer {
public:
    FineTimer() : timer_(Timers().Take()) {}
    ~FineTimer() {
        if (timer_ != nullptr) Timers().GiveBack(timer_);
    }
    FineTimer(const FineTimer&) = delete;
    FineTimer& operator=(const FineTimer&) = delete;

    // Sleeps for the time, in units of 100 ns. False at once when there is no such timer.
    bool Wait(std::int64_t time) const {
        LARGE_INTEGER due{};
        due.QuadPart = -time;
        if (timer_ == nullptr || SetWaitableTimer(timer_, &due, 0, nullptr, nullptr, FALSE) == 0) return false;
        WaitForSingleObject(timer_, INFINITE);
        return true;
    }

    // Sleeps somewhat less than the given time.
    void WaitMostOf(std::int64_t time) const {
        const std::int64_t margin = timer_ != nullptr ? 5'000 : 160'000;
        if (time <= margin) {
            SwitchToThread();
        } else if (!Wait(time - margin)) {
            Sleep(static_cast<DWORD>(std::min<std::int64_t>((time - margin) / 10'000, 60'000)));
        }
    }

private:
    const HANDLE timer_;
};

class PerformanceCounter final : public IClock {
public:
    PerformanceCounter() {
        LARGE_INTEGER number{};
        if (QueryPerformanceFrequency(&number) != 0) frequency_ = number.QuadPart;
    }
    std::int64_t Counter() override {
        LARGE_INTEGER number{};
        QueryPerformanceCounter(&number);
        return number.QuadPart;
    }
    std::int64_t Frequency() override { return frequency_; }
    void SleepUntil(std::int64_t counter) override {
        if (frequency_ <= 0 || Counter() >= counter) return;
        const FineTimer timer;
        for (std::int64_t left = counter - Counter(); left > 0; left = counter - Counter()) {
            const double time = static_cast<double>(left) * 1e7 / static_cast<double>(frequency_);
            timer.WaitMostOf(static_cast<std::int64_t>(std::min(time, 1e15)));
        }
    }

private:
    std::int64_t frequency_ = 0;
};

}  // namespace

IClock& SystemClock() {
    static PerformanceCounter clock;
    return clock;
}

void SleepOneMillisecond() {
    if (!FineTimer().Wait(10'000)) Sleep(1);
}

LocalTime CurrentLocalTime() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDayOfWeek, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds};
}

}  // namespace corvex
