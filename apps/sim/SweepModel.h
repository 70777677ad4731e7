// What takes every value of a definition over its whole range, again and again: for tests of what shows them.
#pragma once

#include <cstdint>
#include <optional>

#include "apps/sim/EngineState.h"

namespace corvex {

// Every signal is a level from 0 (the low end of its range) to 1 (the high end), smooth, and within one cycle of
// kCycle seconds it stays at either end long enough to be seen by a slow poll. A cycle is key-on, crank, idle with
// blips, warm-up, a drive to full throttle, an overheating, and switch-off.
//
// All answers depend on seed, time and key alone; immutable, any thread.
class SweepModel {
public:
    static constexpr double kCycle = 240.0;

    explicit SweepModel(std::uint64_t seed) : seed_(seed) {}

    // `seconds` since the start. What no signal is known of has a wave of its own. `key` tells signals of one kind
    // apart: left and right bank differ a little.
    double Level(std::optional<Signal> signal, std::uint32_t key, double seconds) const;
    // A wave of the given period that dwells at both ends.
    double Wave(std::uint32_t key, double seconds, double period) const;

private:
    std::uint64_t seed_;
};

}  // namespace corvex
