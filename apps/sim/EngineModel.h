// A running engine over time: what its sensors would show from key-on to switch-off, again and again.
#pragma once

#include <cstdint>

namespace corvex {

// What a value of a definition shows, as far as its name tells. kOwn: nothing known, a slow wave of its own.
enum class Signal {
    kRpm,
    kThrottle,
    kSpeed,
    kCoolant,
    kAirTemperature,
    kManifold,
    kOxygen,
    kVoltage,
    kSpark,
    kPulse,
    kTrim,
    kIdleValve,
    kAirflow,
    kOwn,
};

// Every signal is a level from 0 (the low end of its range) to 1 (the high end), smooth, and within one cycle of
// kCycle seconds it stays at either end long enough to be seen by a slow poll. A cycle is key-on, crank, idle with
// blips, warm-up, a drive to full throttle, an overheating, and switch-off.
//
// All answers depend on seed, time and key alone; immutable, any thread.
class EngineModel {
public:
    static constexpr double kCycle = 240.0;

    explicit EngineModel(std::uint64_t seed) : seed_(seed) {}

    // `seconds` since the start. `key` tells signals of one kind apart: left and right bank differ a little.
    double Level(Signal signal, std::uint32_t key, double seconds) const;
    // A wave of the given period that dwells at both ends.
    double Wave(std::uint32_t key, double seconds, double period) const;
    // A number from 0 to 1, excluding 1, fixed for seed and key.
    double Fraction(std::uint32_t key) const;

private:
    std::uint64_t seed_;
};

}  // namespace corvex
