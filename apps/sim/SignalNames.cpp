#include "apps/sim/SignalNames.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

namespace corvex {

namespace {

struct Keyword {
    const char* text;
    Signal signal;
};

// The first that occurs decides, so the narrower word stands before the wider: "idle speed" is an engine speed.
constexpr std::array kTitleWords{
    Keyword{"coolant", Signal::kCoolant},
    Keyword{"oil temp", Signal::kCoolant},
    Keyword{" clt ", Signal::kCoolant},
    Keyword{"transmission temp", Signal::kCoolant},
    Keyword{"intake air temp", Signal::kAirTemperature},
    Keyword{"air temp", Signal::kAirTemperature},
    Keyword{" iat ", Signal::kAirTemperature},
    Keyword{"idle valve", Signal::kIdleValve},
    Keyword{" iac ", Signal::kIdleValve},
    Keyword{"oxygen", Signal::kOxygen},
    Keyword{"lambda", Signal::kOxygen},
    Keyword{" o2 ", Signal::kOxygen},
    Keyword{"throttle", Signal::kThrottle},
    Keyword{" tps ", Signal::kThrottle},
    Keyword{"engine speed", Signal::kRpm},
    Keyword{"idle speed", Signal::kRpm},
    Keyword{"rpm", Signal::kRpm},
    Keyword{"vehicle speed", Signal::kSpeed},
    Keyword{"shaft speed", Signal::kSpeed},
    Keyword{"manifold", Signal::kManifold},
    Keyword{"boost", Signal::kManifold},
    Keyword{"load", Signal::kManifold},
    Keyword{"battery", Signal::kVoltage},
    Keyword{"ignition volt", Signal::kVoltage},
    Keyword{"spark", Signal::kSpark},
    Keyword{"timing", Signal::kSpark},
    Keyword{"injector", Signal::kPulse},
    Keyword{"pulse", Signal::kPulse},
    Keyword{"block learn", Signal::kTrim},
    Keyword{"integrator", Signal::kTrim},
    Keyword{"trim", Signal::kTrim},
    Keyword{"air mass", Signal::kAirflow},
    Keyword{"air flow", Signal::kAirflow},
    Keyword{"airflow", Signal::kAirflow},
    Keyword{" maf ", Signal::kAirflow},
    Keyword{"fuel flow", Signal::kAirflow},
    Keyword{"torque", Signal::kAirflow},
    Keyword{"power", Signal::kAirflow},
};
constexpr std::array kWholeUnits{Keyword{"rpm", Signal::kRpm}, Keyword{"km/h", Signal::kSpeed},
                                 Keyword{"kph", Signal::kSpeed}, Keyword{"mph", Signal::kSpeed},
                                 Keyword{"g/s", Signal::kAirflow}};

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return lower;
}

}  // namespace

Signal SignalOf(std::string_view title, std::string_view units) {
    const std::string padded = ' ' + Lower(title) + ' ';
    for (const Keyword& keyword : kTitleWords) {
        if (padded.find(keyword.text) != std::string::npos) return keyword.signal;
    }
    const std::string unit = Lower(units);
    for (const Keyword& keyword : kWholeUnits) {
        if (unit == keyword.text) return keyword.signal;
    }
    return Signal::kOwn;
}

}  // namespace corvex
