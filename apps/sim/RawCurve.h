// Which raw word makes a value show a given part of its display range.
#pragma once

#include <array>
#include <cstdint>

#include "definition/ADXValue.h"

namespace corvex {

// Where the equation rises or falls throughout, level 0 to 1 runs evenly over the display range rangelow..rangehigh, as
// far as the field can reach it. Where it does not, where other values are linked into it, or where the range is
// empty or out of reach, the level runs over all raw words of the field.
//
// Built from a value's fields by an evaluator of its own, so the value is not touched. Immutable afterwards.
class RawCurve {
public:
    explicit RawCurve(const ADXValue& value);

    // True when the value takes its number from 1 to 4 packet bytes; others have no bytes to write.
    static bool Applies(const ADXValue& value);

    std::uint32_t WordAt(double level) const;
    // Makes the level run over both curves' words, for two values that read the same field.
    void Join(const RawCurve& other);
    // Words are taken from all the field's can hold.
    bool IsWhole() const { return whole_; }

private:
    static constexpr std::size_t kSteps = 64;

    void Straight(double from, double to);

    std::array<double, kSteps + 1> numbers_{};  // native numbers, at even levels
    bool whole_ = true;
};

}  // namespace corvex
