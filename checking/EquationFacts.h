// What can be said about an equation without the value that it belongs to.
#pragma once

#include <string>

#include "definition/EquationEvaluator.h"

namespace corvex {

class ADXValue;

struct EquationFacts {
    std::string text;
    std::string parseproblem;  // empty when it parses
    std::string repeated;      // letters that stand in it more than once, each named once
    std::string fused;         // the first token that joins a letter to something else
    std::string runproblem;    // why it cannot run to its end, whatever the letters hold
    unsigned letters = 0;
    bool caret = false;
};

// Runs the equation with numbers of its own; pure.
EquationFacts StudyEquation(const std::string& text);

// The equation text of a value, whole.
std::string WholeEquation(const ADXValue& value);

// Sentences without a full stop; empty for success.
std::string ParseProblem(int parseCode);
std::string RunProblem(int runCode);

// The letters that occur more than once, each named once.
std::string RepeatedLetters(const std::string& text);

}  // namespace corvex
