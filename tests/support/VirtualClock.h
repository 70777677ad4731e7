// A clock that stands still until the test moves it.
#pragma once

#include <atomic>
#include <cstdint>

#include "platform/Clock.h"

namespace corvex::test {

// Counts microseconds unless another frequency is given. Each reading may push it on by a step, so that a loop which
// spins on the clock comes to its end. Callable from any thread.
class VirtualClock final : public IClock {
public:
    explicit VirtualClock(std::int64_t frequency = 1'000'000) : frequency_(frequency) {}

    std::int64_t Counter() override {
        readings_.fetch_add(1, std::memory_order_relaxed);
        return counter_.fetch_add(step_.load(std::memory_order_relaxed));
    }
    std::int64_t Frequency() override { return frequency_; }
    // Takes no time: the clock moves on instead.
    void SleepUntil(std::int64_t counter) override { AdvanceTo(counter); }

    // Looks without pushing on.
    std::int64_t Peek() const { return counter_.load(); }
    double PeekMilliseconds() const { return static_cast<double>(Peek()) * 1000.0 / static_cast<double>(frequency_); }

    void Advance(std::int64_t counts) { counter_.fetch_add(counts); }
    void AdvanceMilliseconds(std::int64_t milliseconds) { Advance(milliseconds * frequency_ / 1000); }
    // Never moves back.
    void AdvanceTo(std::int64_t counter) {
        std::int64_t now = Peek();
        while (counter > now && !counter_.compare_exchange_weak(now, counter)) {
        }
    }
    void SetStep(std::int64_t counts) { step_.store(counts); }
    std::uint64_t Readings() const { return readings_.load(); }

private:
    const std::int64_t frequency_;
    std::atomic<std::int64_t> counter_{0}, step_{0};
    std::atomic<std::uint64_t> readings_{0};
};

}  // namespace corvex::test
