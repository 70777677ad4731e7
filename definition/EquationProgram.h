// The precompiled form of an equation's postfix text.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "definition/EquationOperators.h"

namespace corvex {

// One occurrence of a letter in an equation.
struct EquationVar {
    char varid = 0;
    double value = 0.0;
};

// Reads the postfix text once, so that an evaluation need not. That gives the same bits as the text only when
//  - each letter is a token of its own, so that no printed number can touch another character, and
//  - the printed numbers leave the substituted text inside its 200 bytes, and
//  - no value prints a minus sign with a letter behind it, as minus infinity does.
// The first is settled by Compile; the other two bound the magnitude of the variables, and Run declines beyond it.
class EquationProgram {
public:
    // `slots` are those made for the same postfix text. An equation that has to be run as text leaves the program
    // unusable.
    void Compile(std::string_view postfix, const std::vector<EquationVar>& slots);

    struct Outcome {
        double value;
        RunCode code;
    };

    // Nothing when the values at hand, or the equation, have to go through the text.
    std::optional<Outcome> Run(const std::vector<EquationVar>& slots) const;

private:
    enum class Kind : unsigned char { kNumber, kVariable, kOperator };

    struct Step {
        Kind kind;
        unsigned char index;  // of the slot, or the operator's row
        double number;
    };

    // Returns the token's length.
    std::size_t CompileToken(std::string_view postfix, std::size_t i, const std::vector<EquationVar>& slots);

    std::vector<Step> steps_;
    // Variables below this magnitude are certain to fit; 0.0 when the program is not usable.
    double limit_ = 0.0;
    // What is known beforehand about the end of a run that meets no zero divisor.
    RunCode end_ = kRunDone;
    std::size_t depth_ = 0;  // of the stack behind the last step
};

}  // namespace corvex
