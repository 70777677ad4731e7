#include "session/base/StopWatch.h"

namespace corvex {

StopWatch::StopWatch() : frequency(CurrentClock().Frequency()), clock_(&CurrentClock()) {
    const double now = Now();
    createdAt = createdAt2 = markAt = startedAt = rateAt = now;
    pausedAt = 0.0;
}

double StopWatch::Current() const {
    return pausedAt != 0.0 ? pausedAt : Now();
}

void StopWatch::Restart() {
    startedAt = markAt = Current();
    paused = 0;
    pausedAt = 0.0;
}

void StopWatch::Pause() {
    if (paused != 0) return;
    pausedAt = markAt = Current();
    paused = 1;
}

double StopWatch::Elapsed() const {
    return Now() - startedAt;
}

float StopWatch::Rate() {
    const double now = Now();
    const double span = now - rateAt;
    if (span > 0.5) {
        rate = static_cast<float>(tickCount.exchange(0, std::memory_order_relaxed) / span);
        rateAt = now;
    }
    return rate;
}

// A machine without a counter has frequency 0; the times are then infinite or no number at all, and are of no use.
double StopWatch::Now() const {
    return static_cast<double>(clock_->Counter()) / static_cast<double>(frequency);
}

}  // namespace corvex
