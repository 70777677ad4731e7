#include "checking/EquationFacts.h"

#include <algorithm>
#include <sstream>

#include "definition/ADXValue.h"

namespace corvex {

namespace {

bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Postfix text is blanks and tokens; a letter that is not a token of its own joins its number to what stands beside it.
std::string FirstFused(const char* postfix) {
    std::istringstream tokens(postfix == nullptr ? "" : postfix);
    std::string token;
    while (tokens >> token) {
        if (token.size() > 1 && std::any_of(token.begin(), token.end(), IsLetter)) return token;
    }
    return {};
}

}  // namespace

std::string WholeEquation(const ADXValue& value) {
    std::string text(value.Equation().GetText(nullptr, 0), '\0');
    value.Equation().GetText(text.data(), static_cast<unsigned>(text.size()));
    return text.c_str();
}

std::string ParseProblem(int parseCode) {
    switch (parseCode) {
        case EquationEvaluator::kParsed:
            return {};
        case EquationEvaluator::kUnbalanced:
            return "its parentheses are not balanced";
        case EquationEvaluator::kDoesNotFit:
            return "it is too long, or has more than 32 letters";
        default:
            return "it has a character where a number, a letter or an operator must stand";
    }
}

std::string RunProblem(int runCode) {
    switch (runCode) {
        case kRunDone:
            return {};
        case kRunShortOfOperands:
            return "an operator is short of operands";
        case kRunDoesNotFit:
            return "its numbers do not fit into 200 characters";
        case kRunBadNumber:
            return "a number in it cannot be read";
        case kRunLeftOver:
            return "an operator is missing: only the last number counts";
        case kRunZeroDivisor:
            return "it divides by zero";
        default:
            return "it does not run to its end";
    }
}

std::string RepeatedLetters(const std::string& text) {
    std::string repeated;
    for (const char c : text) {
        if (IsLetter(c) && std::count(text.begin(), text.end(), c) > 1 && repeated.find(c) == std::string::npos)
            repeated += c;
    }
    return repeated;
}

EquationFacts StudyEquation(const std::string& text) {
    EquationFacts facts;
    facts.text = text;
    facts.caret = text.find('^') != std::string::npos;
    facts.letters = static_cast<unsigned>(std::count_if(text.begin(), text.end(), IsLetter));
    EquationEvaluator evaluator;
    if (evaluator.Parse(text.c_str(), static_cast<unsigned>(text.size())) == 0) {
        facts.parseproblem = ParseProblem(evaluator.LastParseCode());
        return facts;
    }
    facts.repeated = RepeatedLetters(text);
    facts.fused = FirstFused(evaluator.Postfix());
    // A number that is neither 0 nor 1 nor whole keeps most divisors and remainders away from zero.
    for (const char c : text)
        evaluator.SetVariable(c, 37.25);
    evaluator.Evaluate();
    // Whether it divides by zero hangs on the letters, so it is not held against the equation.
    if (evaluator.LastRunCode() != kRunZeroDivisor) facts.runproblem = RunProblem(evaluator.LastRunCode());
    return facts;
}

}  // namespace corvex
