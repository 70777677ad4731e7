// What the simulated engine is at one moment, in one unit each.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>

namespace corvex {

// Of a signal that is there once for each bank, the right one follows the left one.
enum class Signal {
    kRpm,
    kDesiredIdle,  // rpm
    kShaftRpm,     // behind the gearbox
    kSpeed,        // km/h
    kGear,         // 0 in park, then 1 to 4
    kThrottle,     // 0 to 1
    kThrottleVoltage,
    kManifold,    // kPa
    kBarometer,   // kPa
    kBoost,       // kPa above the barometer
    kVacuum,      // kPa below it
    kLoad,        // 0 to 1
    kEfficiency,  // how full the cylinders get, 0 to 1
    kTorque,      // Nm
    kPower,       // kW
    kAirflow,     // g/s
    kAirMass,     // mg in each cylinder
    kFuelFlow,    // l/h
    kAirFuel,     // commanded
    kPulse,       // ms
    kPulseRight,
    kDuty,        // of the injectors, 0 to 1
    kEnrichment,  // ms
    kOxygen,      // V
    kOxygenRight,
    kCrossCount,  // runs to 255 and begins anew
    kShortTrim,   // -1 to 1
    kShortTrimRight,
    kLongTrim,
    kLongTrimRight,
    kSpark,        // degrees before top dead centre, less the retard
    kKnockRetard,  // degrees
    kKnockCount,   // runs to 255 and begins anew
    kKnockLevel,   // V
    kDwell,        // ms
    kCoolant,      // degrees Celsius, as all temperatures
    kOilTemperature,
    kTransmissionTemperature,
    kAirTemperature,
    kVoltage,        // V
    kOilPressure,    // kPa
    kFuelPressure,   // kPa
    kLinePressure,   // kPa
    kIdleValve,      // 0 to 1
    kRecirculation,  // 0 to 1, as all duties
    kPurge,
    kFan,
    kWastegate,
    kShiftTime,    // ms that the last one took
    kFuelLevel,    // l
    kAltitude,     // m
    kLateral,      // g
    kRunTime,      // s since the engine fired, whole
    kRevolutions,  // since then, whole
    kFaults,       // stored
    kLoops,        // runs to 255 and begins anew
    kCount,
};

// What flags tell.
enum class Condition {
    kCranking,
    kFuelPump,
    kClosedLoop,
    kLearning,  // of the long trims
    kLean,      // by the oxygen sensor
    kLeanRight,
    kDecelCut,
    kPowerMixture,
    kTipIn,
    kKnocking,
    kAcRequest,
    kAcClutch,
    kFanLow,
    kFanHigh,
    kConverterLocked,
    kClutchClosed,  // engine and shaft turn together
    kBrake,
    kParked,
    kCruise,
    kShiftLamp,
    kLamp,
    kOxygenFault,
    kOilLow,
    kNever,  // what a sound car never has
    kCount,
};

struct EngineState {
    std::array<float, static_cast<std::size_t>(Signal::kCount)> signals{};
    std::bitset<static_cast<std::size_t>(Condition::kCount)> conditions;

    double operator[](Signal signal) const { return static_cast<double>(signals[static_cast<std::size_t>(signal)]); }
    void Set(Signal signal, double number) { signals[static_cast<std::size_t>(signal)] = static_cast<float>(number); }
    bool Is(Condition condition) const { return conditions[static_cast<std::size_t>(condition)]; }
    void Set(Condition condition, bool holds) { conditions[static_cast<std::size_t>(condition)] = holds; }
};

}  // namespace corvex
