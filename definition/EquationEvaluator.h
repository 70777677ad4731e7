// The arithmetic that turns raw packet numbers into engineering values, such as "(X*0.75)-40".
#pragma once

#include <string>
#include <vector>

#include "definition/EquationProgram.h"

namespace corvex {

// The language. Operands are decimal numbers without exponent and single letters; letters are variables, upper and
// lower case apart. Operators, tightest first: # (power) * /, then %, then - +, then ^ (exclusive or) & |, then < >.
// All of them associate to the left. A leading minus is a subtraction from zero, and a minus right behind an operator
// belongs to the number that follows it.
//
// The effect is textual. An equation is kept as postfix text, and an evaluation reads as if every letter in that text
// were replaced by its value printed with "%f" and the result scanned again. So a variable carries six decimals and no
// more, a letter beside a digit fuses with it ("2X" with X at 3.5 is 23.5), and the substituted text lives in 200
// bytes. Saved definitions depend on every bit of this. Evaluate takes a precompiled way wherever that gives the same
// bits, and works through the text where it would not (see EquationProgram and EquationText).
//
// A letter used twice has two slots: SetVariable writes the first and every read takes the last, so such a letter
// reads 0.0 wherever it stands. Definitions use each letter once.
//
// Limits. An equation of more than 32 letters, or whose postfix text is longer than 199 characters, is refused as a
// whole: Parse returns 0 with code 2, and slots and postfix stay as they were, so that an owner who keeps one entry
// per letter never gets out of step. Cutting the equation would show a wrong number in its place.
//
// One thread at a time may drive an evaluator. Evaluate allocates nothing. Movable, and not copied by anyone.
class EquationEvaluator {
public:
    static constexpr int kMaxLetters = 32;

    enum ParseCode : int { kParsed = 0, kUnbalanced = 1, kDoesNotFit = 2, kUnreadable = 3 };

    EquationEvaluator() = default;
    EquationEvaluator(EquationEvaluator&&) noexcept = default;
    EquationEvaluator& operator=(EquationEvaluator&&) noexcept = default;
    EquationEvaluator(const EquationEvaluator&) = delete;
    EquationEvaluator& operator=(const EquationEvaluator&) = delete;

    // Takes the text up to its NUL, at most `len` characters. 1 when it converts: the slots are made anew, all 0.0.
    // 0 when it does not: the text is kept, while slots and postfix stay those of the last equation that converted.
    // Null or zero `len`: 0, and nothing changes.
    int Parse(const char* text, unsigned len);

    // Copies at most size-1 characters and a terminator; returns the text's length plus one, or 1 when there is none.
    // With a null `out` or zero `size` it only measures.
    unsigned GetText(char* out, unsigned size) const;

    // One slot per occurrence of a letter, in the order of the text.
    int GetSlotCount() const { return static_cast<int>(slots_.size()); }

    // Stores into the first slot of that letter and returns 1; 0 when there is none.
    int SetVariable(char varid, double value);
    // The value of the last slot of that letter; 0.0 when there is none.
    double GetVariable(char varid) const;

    // The result, or 0.0 for an equation that does not run through. Operands left over besides the result (code 4) are
    // not a failure here.
    double Evaluate();

    // How the last Parse and the last Evaluate ended, for tools that check definitions: a ParseCode and a RunCode.
    int LastParseCode() const { return parseCode_; }
    int LastRunCode() const { return runCode_; }

    // The postfix text that Evaluate runs, or null before the first equation that converted.
    const char* Postfix() const { return hasPostfix_ ? postfix_.c_str() : nullptr; }

private:
    void BuildSlots();

    std::string source_;
    std::string postfix_;
    std::vector<EquationVar> slots_;
    EquationProgram program_;
    bool hasPostfix_ = false;
    int parseCode_ = kParsed;
    int runCode_ = kRunDone;
};

}  // namespace corvex
