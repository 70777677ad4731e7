// Guesses from the words of a value or a flag what of the engine it shows.
#pragma once

#include <optional>
#include <string_view>

#include "apps/sim/EngineState.h"

namespace corvex {

// A signal as a value shows it.
struct ShownSignal {
    Signal signal;
    double low, high;               // between which it moves, in its own unit
    bool hasUnit = false;           // the value's unit is known; else only the part between low and high can be told
    double factor = 1, offset = 0;  // to the value's unit

    double NumberOf(double number) const { return number * factor + offset; }
    double PartOf(double number) const { return (number - low) / (high - low); }
};

// Nothing where the words tell nothing.
std::optional<ShownSignal> SignalOf(std::string_view title, std::string_view units);

// What stays as it is for the life of an engine.
bool IsFixed(std::string_view title);

struct ShownCondition {
    Condition condition;
    bool setWhenItHolds;
};

// `trueText` tells which way round: a flag that shows "off" when it is set is clear while the lamp burns.
std::optional<ShownCondition> ConditionOf(std::string_view title, std::string_view trueText);

}  // namespace corvex
