#include <sys/prctl.h>

#include <cerrno>
#include <ctime>

#include "platform/Clock.h"

namespace corvex {

namespace {

constexpr std::int64_t kNanoseconds = 1'000'000'000;

// The kernel may wake an ordinary thread 50 microseconds late to save power: a twentieth of a byte time at 8192 baud.
void TightenTimerSlack() {
    thread_local const bool done = prctl(PR_SET_TIMERSLACK, 1000UL, 0UL, 0UL, 0UL) == 0;
    static_cast<void>(done);
}

class MonotonicClock final : public IClock {
public:
    std::int64_t Counter() override {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        return static_cast<std::int64_t>(now.tv_sec) * kNanoseconds + now.tv_nsec;
    }
    std::int64_t Frequency() override { return kNanoseconds; }
    void SleepUntil(std::int64_t counter) override {
        if (counter <= Counter()) return;
        TightenTimerSlack();
        timespec moment{};
        moment.tv_sec = static_cast<time_t>(counter / kNanoseconds);
        moment.tv_nsec = static_cast<long>(counter % kNanoseconds);
        while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &moment, nullptr) == EINTR) {
        }
    }
};

}  // namespace

IClock& SystemClock() {
    static MonotonicClock clock;
    return clock;
}

void SleepOneMillisecond() {
    SleepUntil(SystemClock().Counter() + kNanoseconds / 1000);
}

LocalTime CurrentLocalTime() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    tm parts{};
    localtime_r(&now.tv_sec, &parts);
    const auto word = [](long number) { return static_cast<std::uint16_t>(number); };
    return {word(parts.tm_year + 1900L), word(parts.tm_mon + 1L), word(parts.tm_wday), word(parts.tm_mday),
            word(parts.tm_hour),         word(parts.tm_min),      word(parts.tm_sec),  word(now.tv_nsec / 1'000'000)};
}

}  // namespace corvex
