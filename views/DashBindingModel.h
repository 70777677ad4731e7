// What a gauge is told when it is bound to its item, and which samples move it afterwards.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "definition/ADXDashboard.h"
#include "definition/ADXDefinition.h"

namespace corvex {

enum GaugeType : std::uint32_t { kAnalogGaugeType = 0, kDigitalReadoutType = 1, kStatusGaugeType = 2 };

enum class BindingAction {
    kTitle,       // text
    kUnits,       // text
    kValue,       // low
    kDigits,      // word
    kRange,       // low, high
    kNoAlarms,    // forgets the bands
    kAlarm,       // low, high, colour
    kFormat,      // word: floating or not; digits
    kColour,      // word: its index; colour
    kLowLimit,    // low
    kHighLimit,   // high
    kHighEnable,  // word
    kLowEnable,   // word
    kTrueText,    // text
    kFalseText,   // text
};

struct BindingStep {
    BindingAction action;
    std::string text = {};
    float low = 0.0F, high = 0.0F;
    std::uint32_t word = 0, digits = 0, colour = 0;  // colour as 0x00BBGGRR
};

// A value for the analog gauge and the digital readout, a bitmask for the status gauge.
bool FitsGauge(std::uint32_t gaugetype, const ADXObject& item);

// In the order in which the gauge is to be told, which shows: an analog gauge takes its first value by the range that
// it had before. None when the entry's item is missing or does not fit. Computes the value, so on the user-interface
// thread.
std::vector<BindingStep> BindingSteps(const ADXDGENTRY& entry, const ADXDefinition& definition);

// Is there something new for the entry in a reply of this command? Items without a command take every reply.
bool TakesSample(const ADXDGENTRY& entry, std::uint32_t commandId);

}  // namespace corvex
