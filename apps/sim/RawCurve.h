// Which raw word makes a value show a given part of its display range.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

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
    // Level 0 to 1 runs over the numbers from low to high instead of the display range.
    RawCurve(const ADXValue& value, double low, double high);

    // True when the value takes its number from 1 to 4 packet bytes; others have no bytes to write.
    static bool Applies(const ADXValue& value);

    std::uint32_t WordAt(double level) const;
    // The word that makes the value show that number, or what the field has nearest to it. To the last one where the
    // equation is a straight line; elsewhere between low and high, by WordAt.
    std::uint32_t WordFor(double number) const;
    // Makes the level run over both curves' words, for two values that read the same field.
    void Join(const RawCurve& other);
    // Words are taken from all the field's can hold.
    bool IsWhole() const { return whole_; }

private:
    static constexpr std::size_t kSteps = 64;

    void Straight(double from, double to);

    double low_, high_;
    std::array<double, kSteps + 1> numbers_{};  // native numbers, at even levels
    struct Line {
        double zero, slope;  // the value's number is zero + slope times the native number
        double least, most;  // native numbers
    };
    std::optional<Line> line_;
    bool whole_ = true;
};

}  // namespace corvex
