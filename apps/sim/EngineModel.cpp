#include "apps/sim/EngineModel.h"

#include <algorithm>
#include <cmath>

#include "apps/sim/SimulatedCar.h"

namespace corvex {

namespace {

constexpr auto kStepsOfStart = static_cast<std::size_t>(EngineModel::kStart / EngineModel::kStep + 0.5);
constexpr auto kStepsOfLap = static_cast<std::size_t>(EngineModel::kLap / EngineModel::kStep + 0.5);
constexpr std::size_t kLaps = 4;  // after which the heat has settled
constexpr std::size_t kSteps = kStepsOfStart + kLaps * kStepsOfLap;

}  // namespace

EngineModel::EngineModel(std::uint64_t seed, bool turbo) {
    SimulatedCar car(seed, turbo);
    states_.reserve(kSteps);
    for (std::size_t i = 0; i < kSteps; ++i) {
        const double seconds = static_cast<double>(i) * kStep, lap = seconds - kStart;
        car.Step(seconds, lap < 0 ? lap : std::fmod(lap, kLap));
        states_.push_back(car.State());
    }
}

EngineState EngineModel::At(double seconds) const {
    const double step = std::floor(std::max(seconds, 0.0) / kStep + 1e-6);
    if (step < static_cast<double>(kSteps)) return states_[static_cast<std::size_t>(step)];
    const double beyond = step - static_cast<double>(kSteps);
    const double laps = 1 + std::floor(beyond / static_cast<double>(kStepsOfLap));
    const auto within = static_cast<std::size_t>(std::fmod(beyond, static_cast<double>(kStepsOfLap)));
    EngineState state = states_[kSteps - kStepsOfLap + within];
    const EngineState &first = states_[kSteps - kStepsOfLap - 1], &second = states_.back();
    for (const Signal counter : {Signal::kRunTime, Signal::kRevolutions})
        state.Set(counter, state[counter] + laps * (second[counter] - first[counter]));
    return state;
}

}  // namespace corvex
