#include "platform/Clock.h"

#include <atomic>

namespace corvex {

namespace {

std::atomic<IClock*> forcedClock{nullptr};

}  // namespace

IClock& CurrentClock() {
    IClock* clock = forcedClock.load(std::memory_order_acquire);
    return clock != nullptr ? *clock : SystemClock();
}

void SleepUntil(std::int64_t counter) {
    SystemClock().SleepUntil(counter);
}

ScopedClock::ScopedClock(IClock& clock) : previous_(forcedClock.exchange(&clock, std::memory_order_acq_rel)) {}

ScopedClock::~ScopedClock() {
    forcedClock.store(previous_, std::memory_order_release);
}

}  // namespace corvex
