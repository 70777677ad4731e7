// Seconds from the high-resolution counter. Every interval of the system goes through this class.
#pragma once

#include <atomic>
#include <cstdint>

#include "platform/Clock.h"

namespace corvex {

// A plain structure, embedded by value in its owner. All times are seconds in double precision.
//
// Threads: one thread times with it. tickCount alone may be counted up by a second thread while the owner reads Rate.
class StopWatch {
public:
    // Reads the counter of CurrentClock(); every field becomes that moment, or zero.
    StopWatch();

    // The moment of Pause while paused, else the present.
    double Current() const;

    // Starts anew from Current(): a paused stopwatch therefore restarts from the moment it was paused,
    // not from the present.
    void Restart();

    // Remembers the moment. Does nothing while paused.
    void Pause();

    // Seconds since the last Restart. Deliberately ignores a pause: log times depend on it.
    double Elapsed() const;

    // Ticks per second since the rate was last computed. Computed anew when more than 0.5 s have passed since then.
    float Rate();

    // The present, in seconds of the counter.
    double Now() const;

    double createdAt, createdAt2;  // construction; the second is kept beside the first and read by nobody
    double markAt;                 // last restart or pause
    double startedAt;              // origin of Elapsed
    double pausedAt;               // 0.0 while not paused
    std::uint32_t paused = 0;
    std::atomic<std::uint32_t> tickCount{0};  // events since the rate was last computed
    double rateAt;                            // when that was
    float rate = 0.0F;                        // hertz
    std::int64_t frequency;                   // counts per second

private:
    IClock* clock_;
};

}  // namespace corvex
