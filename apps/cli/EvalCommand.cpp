#include <algorithm>
#include <ostream>
#include <string>

#include "apps/cli/Commands.h"
#include "checking/EquationFacts.h"
#include "definition/EquationEvaluator.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

constexpr const char* kName = "corvex-cli: ";

// Letters of the equation that got no number.
std::string MissingLetters(const EvalOptions& options) {
    std::string missing;
    for (const char c : options.equation) {
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        const bool given = std::any_of(options.letters.begin(), options.letters.end(),
                                       [c](const auto& entry) { return entry.first == c; });
        if (letter && !given && missing.find(c) == std::string::npos) missing += c;
    }
    return missing;
}

void TellDoubts(const EvalOptions& options, const EquationEvaluator& evaluator, std::ostream& err) {
    for (const char c : RepeatedLetters(options.equation))
        err << kName << "note: the letter " << c << " stands in the equation more than once, so it reads 0\n";
    for (const char c : MissingLetters(options))
        err << kName << "note: no number is given for " << c << ", it is 0\n";
    const std::string problem = RunProblem(evaluator.LastRunCode());
    if (!problem.empty()) err << kName << "note: " << problem << '\n';
}

}  // namespace

ExitCode RunEval(const EvalOptions& options, std::ostream& out, std::ostream& err) {
    EquationEvaluator evaluator;
    if (options.equation.empty()) {
        err << kName << "the equation is empty\n";
        return kExitUsage;
    }
    if (evaluator.Parse(options.equation.c_str(), static_cast<unsigned>(options.equation.size())) == 0) {
        err << kName << "\"" << options.equation << "\" does not parse: " << ParseProblem(evaluator.LastParseCode())
            << '\n';
        return kExitFailure;
    }
    for (const auto& [letter, number] : options.letters) {
        if (evaluator.SetVariable(letter, number) != 0) continue;
        err << kName << "the equation has no letter " << letter << '\n';
        return kExitUsage;
    }
    out << Printf("%.17g", evaluator.Evaluate()) << '\n';
    TellDoubts(options, evaluator, err);
    return kExitSuccess;
}

}  // namespace corvex
