#include <algorithm>

#include "platform/Clock.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

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

private:
    std::int64_t frequency_ = 0;
};

// A timer that wakes within a fraction of a millisecond where Windows has one (10, version 1803, and later); an
// ordinary wait may be late by a whole tick of 15.6 ms.
class FineTimer {
public:
    FineTimer() : timer_(CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, SYNCHRONIZE | TIMER_MODIFY_STATE)) {}
    ~FineTimer() {
        if (timer_ != nullptr) CloseHandle(timer_);
    }
    FineTimer(const FineTimer&) = delete;
    FineTimer& operator=(const FineTimer&) = delete;

    // Sleeps somewhat less than the given time, in units of 100 ns.
    void SleepMostOf(std::int64_t time) const {
        const std::int64_t margin = timer_ != nullptr ? 5'000 : 160'000;
        if (time <= margin) {
            SwitchToThread();
            return;
        }
        LARGE_INTEGER due{};
        due.QuadPart = -(time - margin);
        if (timer_ != nullptr && SetWaitableTimer(timer_, &due, 0, nullptr, nullptr, FALSE) != 0) {
            WaitForSingleObject(timer_, INFINITE);
        } else {
            Sleep(static_cast<DWORD>(std::min<std::int64_t>((time - margin) / 10'000, 60'000)));
        }
    }

private:
    static constexpr DWORD kHighResolution = 2;
    HANDLE timer_;
};

}  // namespace

IClock& SystemClock() {
    static PerformanceCounter clock;
    return clock;
}

void SleepUntil(std::int64_t counter) {
    IClock& clock = SystemClock();
    const std::int64_t frequency = clock.Frequency();
    if (frequency <= 0 || clock.Counter() >= counter) return;
    const FineTimer timer;
    for (std::int64_t left = counter - clock.Counter(); left > 0; left = counter - clock.Counter()) {
        const double time = static_cast<double>(left) * 1e7 / static_cast<double>(frequency);
        timer.SleepMostOf(static_cast<std::int64_t>(std::min(time, 1e15)));
    }
}

LocalTime CurrentLocalTime() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDayOfWeek, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds};
}

}  // namespace corvex
