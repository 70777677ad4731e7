// Holds EquationEvaluator against the plain textual evaluator.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "definition/EquationEvaluator.h"
#include "tests/support/TextualEvaluator.h"

namespace corvex::testing {

inline bool SameNumber(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) || std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

inline std::string Describe(const std::string& equation, const std::vector<double>& values, const std::string& what) {
    std::string text = what + " of \"" + equation + "\" differs, with";
    char number[64];
    for (double value : values) {
        std::snprintf(number, sizeof number, " %.17g", value);
        text += number;
    }
    return text;
}

// The first difference between the two, in words, or an empty text. The values go to the letters of the equation in
// their order; letters beyond the values stay at 0.0. The equation must hold no NUL.
inline std::string DifferenceFromTextual(const std::string& equation, const std::vector<double>& values) {
    EquationEvaluator fast;
    TextualEvaluator plain;
    const int expected = equation.empty() ? 0 : plain.Parse(equation);
    fast.Parse(equation.c_str(), static_cast<unsigned>(equation.size()));
    if (fast.LastParseCode() != expected) return Describe(equation, values, "parse code");
    if (plain.postfix != (fast.Postfix() != nullptr ? fast.Postfix() : "")) {
        return Describe(equation, values, "postfix");
    }
    if (fast.GetSlotCount() != static_cast<int>(plain.slots.size())) return Describe(equation, values, "slot count");
    for (std::size_t i = 0; i < values.size() && i < plain.slots.size(); ++i) {
        fast.SetVariable(plain.slots[i].first, values[i]);
        plain.SetVariable(plain.slots[i].first, values[i]);
    }
    const double expectedResult = plain.Evaluate();
    const double result = fast.Evaluate();
    if (fast.LastRunCode() != plain.code) return Describe(equation, values, "run code");
    if (!SameNumber(result, expectedResult)) return Describe(equation, values, "result");
    return {};
}

}  // namespace corvex::testing
