#include "apps/sim/SignalNames.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <span>
#include <string>

namespace corvex {

namespace {

template <class Meaning>
struct Keyword {
    const char* text;
    Meaning meaning;
};

using S = Signal;
using C = Condition;

// The first that occurs decides, so the narrower word stands before the wider: "oil pressure" is no manifold.
constexpr Keyword<Signal> kSignalWords[] = {
    {"desired idle", S::kDesiredIdle},
    {"target idle", S::kDesiredIdle},
    {"desired", S::kDesiredIdle},
    {"oil temp", S::kOilTemperature},
    {"transmission temp", S::kTransmissionTemperature},
    {"gearbox temp", S::kTransmissionTemperature},
    {"coolant", S::kCoolant},
    {"water temp", S::kCoolant},
    {" clt ", S::kCoolant},
    {" ect ", S::kCoolant},
    {"intake temp", S::kAirTemperature},
    {"air temp", S::kAirTemperature},
    {" iat ", S::kAirTemperature},
    {"oil press", S::kOilPressure},
    {"fuel press", S::kFuelPressure},
    {"line press", S::kLinePressure},
    {"barom", S::kBarometer},
    {"vacuum", S::kVacuum},
    {"boost", S::kBoost},
    {"manifold", S::kManifold},
    {" map ", S::kManifold},
    {"idle valve", S::kIdleValve},
    {"idle air", S::kIdleValve},
    {"idle steps", S::kIdleValve},
    {" iac ", S::kIdleValve},
    {"cross count", S::kCrossCount},
    {"oxygen", S::kOxygen},
    {"lambda sensor", S::kOxygen},
    {" o2 ", S::kOxygen},
    {"air/fuel", S::kAirFuel},
    {" afr ", S::kAirFuel},
    {"enrichment", S::kEnrichment},
    {"throttle", S::kThrottle},
    {" tps ", S::kThrottle},
    {"shaft speed", S::kShaftRpm},
    {"vehicle speed", S::kSpeed},
    {"road speed", S::kSpeed},
    {" vss ", S::kSpeed},
    {"engine speed", S::kRpm},
    {"rpm", S::kRpm},
    {" gear ", S::kGear},
    {"lateral", S::kLateral},
    {"altitude", S::kAltitude},
    {"injector duty", S::kDuty},
    {"injector", S::kPulse},
    {"pulse", S::kPulse},
    {"fuel flow", S::kFuelFlow},
    {"fuel level", S::kFuelLevel},
    {"block learn", S::kLongTrim},
    {"long term", S::kLongTrim},
    {"integrator", S::kShortTrim},
    {"trim", S::kShortTrim},
    {"knock retard", S::kKnockRetard},
    {"knock count", S::kKnockCount},
    {"knock", S::kKnockLevel},
    {"spark", S::kSpark},
    {"timing", S::kSpark},
    {"dwell", S::kDwell},
    {"battery", S::kVoltage},
    {"ignition volt", S::kVoltage},
    {"mass air", S::kAirflow},
    {"air mass", S::kAirMass},
    {"air flow", S::kAirflow},
    {"airflow", S::kAirflow},
    {" maf ", S::kAirflow},
    {"torque", S::kTorque},
    {"engine power", S::kPower},
    {"volumetric", S::kEfficiency},
    {"load", S::kLoad},
    {" egr ", S::kRecirculation},
    {"purge", S::kPurge},
    {" fan ", S::kFan},
    {"wastegate", S::kWastegate},
    {"shift time", S::kShiftTime},
    {"run time", S::kRunTime},
    {"revolutions", S::kRevolutions},
    {"loop count", S::kLoops},
    {"stored fault", S::kFaults},
    {"fault count", S::kFaults},
};
constexpr Keyword<Signal> kSignalUnits[] = {
    {"rpm", S::kRpm}, {"km/h", S::kSpeed}, {"kph", S::kSpeed}, {"mph", S::kSpeed}, {"g/s", S::kAirflow}};

constexpr Keyword<Condition> kConditionWords[] = {
    {"closed loop", C::kClosedLoop},
    {"block learn", C::kLearning},
    {"lean", C::kLean},
    {"mixture", C::kLean},
    {"decel", C::kDecelCut},
    {"power enrich", C::kPowerMixture},
    {"asynchronous", C::kTipIn},
    {"oxygen sensor", C::kOxygenFault},
    {"knock retard", C::kKnocking},
    {"oil pressure", C::kOilLow},
    {"air conditioning req", C::kAcRequest},
    {"air conditioning", C::kAcClutch},
    {"fan high", C::kFanHigh},
    {" fan ", C::kFanLow},
    {"converter clutch", C::kConverterLocked},
    {"brake", C::kBrake},
    {"park", C::kParked},
    {"neutral", C::kParked},
    {"cruise", C::kCruise},
    {"check engine", C::kLamp},
    {"malfunction", C::kLamp},
    {"shift l", C::kShiftLamp},
    {"fuel pump", C::kFuelPump},
    {"crank", C::kCranking},
    {"sensor", C::kNever},
    {"valve", C::kNever},
    {"fault", C::kNever},
    {"error", C::kNever},
    {"reverse", C::kNever},
    {"limp", C::kNever},
    {"theft", C::kNever},
    {"diagnostic", C::kNever},
    {"flood", C::kNever},
    {"cut", C::kNever},
    {"boost", C::kNever},
};
// What a flag shows while its condition does not hold.
constexpr std::array kRestWords{"off",  "no",   "good",     "ok",   "normal", "none",    "clear",
                                "free", "open", "inactive", "rich", "road",   "stopped", "unlocked"};

enum class Dimension { kNone, kCounts, kPart, kTemperature, kPressure, kSpeed, kVoltage, kMilliseconds, kTrim, kSteps };

struct Span {
    Signal signal;
    Dimension dimension;
    double low, high;
};

constexpr Span kSpans[] = {
    {S::kRpm, Dimension::kNone, 0, 5000},
    {S::kDesiredIdle, Dimension::kNone, 0, 5000},
    {S::kShaftRpm, Dimension::kNone, 0, 5000},
    {S::kSpeed, Dimension::kSpeed, 0, 200},
    {S::kGear, Dimension::kCounts, 0, 5},
    {S::kThrottle, Dimension::kPart, 0, 1},
    {S::kThrottleVoltage, Dimension::kVoltage, 0, 5},
    {S::kManifold, Dimension::kPressure, 10, 200},
    {S::kBarometer, Dimension::kPressure, 10, 110},
    {S::kBoost, Dimension::kPressure, -100, 100},
    {S::kVacuum, Dimension::kPressure, 0, 100},
    {S::kLoad, Dimension::kPart, 0, 1},
    {S::kEfficiency, Dimension::kPart, 0, 1},
    {S::kTorque, Dimension::kNone, -100, 400},
    {S::kPower, Dimension::kNone, -50, 200},
    {S::kAirflow, Dimension::kNone, 0, 250},
    {S::kAirMass, Dimension::kNone, 0, 1000},
    {S::kFuelFlow, Dimension::kNone, 0, 100},
    {S::kAirFuel, Dimension::kNone, 10, 20},
    {S::kPulse, Dimension::kMilliseconds, 0, 20},
    {S::kPulseRight, Dimension::kMilliseconds, 0, 20},
    {S::kDuty, Dimension::kPart, 0, 1},
    {S::kEnrichment, Dimension::kMilliseconds, 0, 5},
    {S::kOxygen, Dimension::kVoltage, 0, 1},
    {S::kOxygenRight, Dimension::kVoltage, 0, 1},
    {S::kCrossCount, Dimension::kCounts, 0, 255},
    {S::kShortTrim, Dimension::kTrim, -0.5, 0.5},
    {S::kShortTrimRight, Dimension::kTrim, -0.5, 0.5},
    {S::kLongTrim, Dimension::kTrim, -0.5, 0.5},
    {S::kLongTrimRight, Dimension::kTrim, -0.5, 0.5},
    {S::kSpark, Dimension::kNone, 0, 50},
    {S::kKnockRetard, Dimension::kNone, 0, 20},
    {S::kKnockCount, Dimension::kCounts, 0, 255},
    {S::kKnockLevel, Dimension::kVoltage, 0, 5},
    {S::kDwell, Dimension::kMilliseconds, 0, 10},
    {S::kCoolant, Dimension::kTemperature, -40, 160},
    {S::kOilTemperature, Dimension::kTemperature, -40, 160},
    {S::kTransmissionTemperature, Dimension::kTemperature, -40, 160},
    {S::kAirTemperature, Dimension::kTemperature, -40, 160},
    {S::kVoltage, Dimension::kVoltage, 8, 18},
    {S::kOilPressure, Dimension::kPressure, 0, 500},
    {S::kFuelPressure, Dimension::kPressure, 0, 500},
    {S::kLinePressure, Dimension::kPressure, 0, 2000},
    {S::kIdleValve, Dimension::kSteps, 0, 1},
    {S::kRecirculation, Dimension::kPart, 0, 1},
    {S::kPurge, Dimension::kPart, 0, 1},
    {S::kFan, Dimension::kPart, 0, 1},
    {S::kWastegate, Dimension::kPart, 0, 1},
    {S::kShiftTime, Dimension::kMilliseconds, 0, 1000},
    {S::kFuelLevel, Dimension::kNone, 0, 70},
    {S::kAltitude, Dimension::kNone, -500, 4500},
    {S::kLateral, Dimension::kNone, -1, 1},
    {S::kRunTime, Dimension::kCounts, 0, 65535},
    {S::kRevolutions, Dimension::kCounts, 0, 4294967295.0},
    {S::kFaults, Dimension::kCounts, 0, 20},
    {S::kLoops, Dimension::kCounts, 0, 255},
};

static_assert(std::ranges::all_of(kSignalWords, [](const Keyword<Signal>& word) {
    return std::ranges::find(kSpans, word.meaning, &Span::signal) != std::end(kSpans);
}));

struct Unit {
    Dimension dimension;
    const char* text;
    double factor, offset;
};

constexpr Unit kUnits[] = {
    {Dimension::kPart, "%", 100, 0},
    {Dimension::kTemperature, "c", 1, 0},
    {Dimension::kTemperature, "deg c", 1, 0},
    {Dimension::kTemperature,
     "\xB0"
     "c",
     1, 0},
    {Dimension::kTemperature, "f", 1.8, 32},
    {Dimension::kTemperature, "deg f", 1.8, 32},
    {Dimension::kTemperature,
     "\xB0"
     "f",
     1.8, 32},
    {Dimension::kPressure, "kpa", 1, 0},
    {Dimension::kPressure, "mbar", 10, 0},
    {Dimension::kPressure, "hpa", 10, 0},
    {Dimension::kPressure, "bar", 0.01, 0},
    {Dimension::kPressure, "psi", 0.145038, 0},
    {Dimension::kSpeed, "km/h", 1, 0},
    {Dimension::kSpeed, "kph", 1, 0},
    {Dimension::kSpeed, "mph", 0.621371, 0},
    {Dimension::kVoltage, "v", 1, 0},
    {Dimension::kVoltage, "volts", 1, 0},
    {Dimension::kVoltage, "mv", 1000, 0},
    {Dimension::kMilliseconds, "ms", 1, 0},
    {Dimension::kMilliseconds, "msec", 1, 0},
    {Dimension::kTrim, "%", 100, 0},
    {Dimension::kTrim, "", 128, 128},
    {Dimension::kTrim, "counts", 128, 128},
    {Dimension::kSteps, "steps", 160, 0},
    {Dimension::kSteps, "%", 100, 0},
};

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return lower;
}

std::string PaddedLower(std::string_view title) {
    return ' ' + Lower(title) + ' ';
}

template <class Meaning>
std::optional<Meaning> FirstWordIn(std::string_view padded, std::span<const Keyword<Meaning>> words) {
    for (const Keyword<Meaning>& word : words) {
        if (padded.find(word.text) != std::string_view::npos) return word.meaning;
    }
    return std::nullopt;
}

bool IsRight(std::string_view padded) {
    return padded.find("right") != std::string_view::npos || padded.find("bank 2") != std::string_view::npos;
}

// The same of the other bank, or by another instrument.
Signal Narrowed(Signal signal, std::string_view padded, std::string_view unit) {
    if (signal == S::kThrottle && (unit == "v" || unit == "volts" || unit == "mv")) return S::kThrottleVoltage;
    if (signal == S::kAirMass && unit == "g/s") return S::kAirflow;
    constexpr std::array kBanks{S::kPulse, S::kOxygen, S::kShortTrim, S::kLongTrim};
    if (!IsRight(padded) || std::ranges::find(kBanks, signal) == kBanks.end()) return signal;
    return static_cast<Signal>(static_cast<int>(signal) + 1);
}

}  // namespace

std::optional<ShownSignal> SignalOf(std::string_view title, std::string_view units) {
    const std::string padded = PaddedLower(title), unit = Lower(units);
    auto found = FirstWordIn<Signal>(padded, kSignalWords);
    for (const auto& [text, signal] : kSignalUnits) {
        if (!found && unit == text) found = signal;
    }
    if (!found) return std::nullopt;
    const Signal signal = Narrowed(*found, padded, unit);
    const Span& span = *std::ranges::find(kSpans, signal, &Span::signal);
    ShownSignal shown{signal, span.low, span.high};
    shown.hasUnit = span.dimension == Dimension::kNone || span.dimension == Dimension::kCounts;
    for (const Unit& each : kUnits) {
        if (each.dimension != span.dimension || unit != each.text) continue;
        shown.hasUnit = true;
        shown.factor = each.factor;
        shown.offset = each.offset;
    }
    return shown;
}

bool IsFixed(std::string_view title) {
    const std::string padded = PaddedLower(title);
    return padded.find("calibration") != std::string::npos || padded.find(" prom ") != std::string::npos;
}

std::optional<ShownCondition> ConditionOf(std::string_view title, std::string_view trueText) {
    const std::string padded = PaddedLower(title), text = Lower(trueText);
    auto condition = FirstWordIn<Condition>(padded, kConditionWords);
    if (!condition) return std::nullopt;
    if (condition == C::kLean && IsRight(padded)) condition = C::kLeanRight;
    if (condition == C::kOxygenFault && IsRight(padded)) condition = C::kNever;
    const auto isRest = [&](const char* word) { return text == word; };
    return ShownCondition{*condition, std::ranges::none_of(kRestWords, isRest)};
}

}  // namespace corvex
