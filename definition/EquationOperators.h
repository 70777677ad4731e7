// The operators of the equation language and what they compute.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace corvex {

// How a run over an equation ended.
enum RunCode : int {
    kRunDone = 0,
    kRunShortOfOperands = 1,
    kRunDoesNotFit = 2,   // the substituted text left its 200 bytes, so nothing was run
    kRunBadNumber = 3,    // a number with characters behind its digits
    kRunLeftOver = 4,     // more than one number left; the top is the result all the same
    kRunZeroDivisor = 5,  // by / or %
};

// Character classes of the C locale, whatever the process has set.
constexpr bool IsEquationDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool IsEquationLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
constexpr bool IsEquationSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// Row 1 to 11 of the operator table, or -1. Row 0 names no operator.
int MatchOperator(char c);

// Higher binds tighter.
int OperatorPrecedence(int row);

// True for the characters that make a preceding token count as an operator when an implicit zero is looked for. Some
// of them ("!", "=", "\") mean nothing anywhere else, and the power operator is not among them.
bool IsOperatorCharacter(char c);

// Letters, digits and points from the start on, with one minus sign allowed in front of them.
std::size_t TokenLength(std::string_view s);

// The number without its fraction, brought into 32 bits modulo 2^32 the way integer registers wrap: 4294967295.0 is
// -1 and so works as a mask of all bits. Infinities and NaN give 0. The same on every target.
std::int32_t ToInt32(double value);

// Puts `a` row `b` into `a`. Returns kRunDone, or kRunZeroDivisor with `a` unchanged: a zero divisor of /, and for % a
// divisor that is zero or becomes zero by the truncation. The remainder of the lowest number by -1 is 0.
RunCode ApplyOperator(int row, double& a, double b);

}  // namespace corvex
