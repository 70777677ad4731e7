// The textual way to evaluate an equation: numbers are printed into the postfix text, and the text is run.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "definition/EquationOperators.h"
#include "definition/EquationProgram.h"

namespace corvex {

// Every equation means what this class makes of it; the program is a shortcut to the same bits.
//
// The text lives in 200 bytes. A number that does not fit is cut where the bytes end, and writing goes on at the start
// of the text, over what stands there, until the next number ends the text anew. What comes out is seldom of use, but
// it is the same each time: a lone X at 1e300 reads as its first 199 digits. Characters that stand in the postfix
// itself have no such rule: when one of them finds no room, nothing is run (kRunDoesNotFit).
class EquationText {
public:
    static constexpr std::size_t kSize = 200;

    // False when the text left its bytes.
    bool Substitute(std::string_view postfix, const std::vector<EquationVar>& slots);

    // The text of the last substitution, up to its end.
    std::string_view Text() const;

    // Stores the result for kRunDone and kRunLeftOver only; for a text without numbers it stays as it was.
    static RunCode Run(std::string_view text, double& result);

private:
    std::array<char, kSize> work_{};
};

// The value of the last slot of that letter; 0.0 when there is none.
double LastValueOf(char varid, const std::vector<EquationVar>& slots);

}  // namespace corvex
