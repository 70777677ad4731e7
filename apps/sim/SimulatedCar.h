// The car that is driven: what one step of time makes of it.
#pragma once

#include <cstdint>

#include "apps/sim/EngineState.h"

namespace corvex {

// Moves on in steps of EngineModel::kStep, each of which works out driver, driveline, air, fuel, spark and heat in that
// order. Plain first-order physics: enough for all values to agree with one another.
class SimulatedCar {
public:
    SimulatedCar(std::uint64_t seed, bool turbo);

    // On by one step, to a moment `seconds` after key-on, which lies `lap` seconds into a lap.
    void Step(double seconds, double lap);
    const EngineState& State() const { return state_; }

private:
    // Of a bank: what its fuel control has learnt.
    struct Bank {
        double shortTrim = 0, longTrim = 0, oxygen = 0.45;
        bool rich = false;
    };

    double At(Signal signal) const { return state_[signal]; }
    double Thermostat() const;
    void Drive(double lap);
    void Shift(double pedal);
    void TurnEngine(double pedal);
    void Breathe();
    void Push(double brake);
    void Mix(double lap);
    double ControlBank(Bank& bank, double wanted, bool loop, bool learns, double phase);
    void Ignite(double lap);
    void Heat();
    void Supply();
    void Tell(double lap);

    EngineState state_;
    bool turbo_;
    double size_;   // of the engine: one with a turbocharger is smaller
    double phase_;  // of what trembles, in turns
    double seconds_ = 0, step_;
    bool running_ = false, cranking_ = false, fuelCut_ = false, power_ = false, drive_ = false, coupled_ = false;
    int gear_ = 0;
    double shiftLeft_ = 0, dwellInGear_ = 0;  // seconds
    double throttle_ = 0, lastThrottle_ = 0, airCharge_ = 99, boost_ = 0;
    double knockUntilCount_ = 0, revolutions_ = 0, distance_ = 0;
    Bank left_, right_;
    int crossCount_ = 0, knockCount_ = 0;
    double retard_ = 0, enrichment_ = 0, firedAt_ = 0;
};

}  // namespace corvex
