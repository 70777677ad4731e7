// A car being driven: the state of its engine from key-on, at any time.
#pragma once

#include <cstdint>
#include <vector>

#include "apps/sim/EngineState.h"

namespace corvex {

// Key on, crank, idle and a blip, then laps of kLap seconds without end, which begin and end at idle in park: pulls of
// rising load, a cruise, a full pull, braking. The first one warms the engine up, later ones are alike; run time
// and revolutions go on counting. In each lap the left bank runs lean for a while, upon which the lamp comes on for a
// while, and a hard pull knocks.
//
// Driven once, in steps, when it is built; the answers are a function of seed, `turbo` and time. Immutable afterwards,
// any thread.
class EngineModel {
public:
    static constexpr double kStep = 0.04;  // seconds
    static constexpr double kStart = 8.0;  // of the first lap
    static constexpr double kLap = 160.0;

    // With a turbocharger the manifold goes above the barometer.
    explicit EngineModel(std::uint64_t seed, bool turbo = false);

    // As of `seconds` since key-on.
    EngineState At(double seconds) const;

private:
    std::vector<EngineState> states_;  // one for each step of the laps that are driven
};

}  // namespace corvex
