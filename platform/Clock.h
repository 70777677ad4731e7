// The high-resolution counter, waiting for a moment of it, and the local time of day.
#pragma once

#include <cstdint>

namespace corvex {

// A source of counter readings. Every interval of the system is measured on one, so a test can put time under
// its own control. Callable from any thread.
class IClock {
public:
    virtual ~IClock() = default;
    virtual std::int64_t Counter() = 0;    // monotonic, in counts
    virtual std::int64_t Frequency() = 0;  // counts per second, constant for the life of the clock; 0: no counter
    // Blocks until the counter has reached `counter`; returns at once when that moment has passed, never early. Without
    // a counter it returns at once.
    virtual void SleepUntil(std::int64_t counter) = 0;
};

// The machine's own counter.
IClock& SystemClock();

// The clock that a new StopWatch reads: the system's, unless a ScopedClock is in force.
IClock& CurrentClock();

// Puts another clock in force for its lifetime. For tests with virtual time; not to be nested across threads.
class ScopedClock {
public:
    explicit ScopedClock(IClock& clock);
    ~ScopedClock();
    ScopedClock(const ScopedClock&) = delete;
    ScopedClock& operator=(const ScopedClock&) = delete;

private:
    IClock* previous_;
};

// SystemClock().SleepUntil, accurate to the scheduler's latency (some 0.1 ms on an idle machine). May keep a processor
// busy for the last half millisecond.
void SleepUntil(std::int64_t counter);

// Gives the processor away for about a millisecond, for a loop that looks again and again: neither exact nor never
// early, but at no cost. A whole tick of 15.6 ms on a Windows without fine timers.
void SleepOneMillisecond();

// The local time, as the operating system tells it.
struct LocalTime {
    std::uint16_t year, month, dayOfWeek, day, hour, minute, second, milliseconds;  // month 1..12, Sunday is day 0
};
LocalTime CurrentLocalTime();

}  // namespace corvex
