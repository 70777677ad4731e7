// Races the evaluator against the plain textual one, with muparser (a compiling evaluator without the textual effect)
// beside them, over the equations definitions are full of. Prints ratios of one run; exit 1 when the ratio or the
// allocation count is not what it has to be.
#include <benchmark/benchmark.h>
#include <muParser.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>

#include "definition/EquationEvaluator.h"
#include "tests/support/AllocationCount.h"
#include "tests/support/TextualEvaluator.h"

namespace {

constexpr double kWantedRatio = 3.5;
constexpr int kRounds = 9;
constexpr int kEvaluations = 4096;

struct Cost {
    double nanoseconds = 1e9;
    double allocations = 0.0;

    // The best round counts: what else the machine does only ever adds time.
    template <class Evaluate>
    void Measure(Evaluate evaluate) {
        const std::uint64_t allocated = corvex::testing::AllocationCount();
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < kEvaluations; ++i)
            benchmark::DoNotOptimize(evaluate(i & 1023));
        const std::chrono::duration<double, std::nano> took = std::chrono::steady_clock::now() - start;
        nanoseconds = std::min(nanoseconds, took.count() / kEvaluations);
        allocations = static_cast<double>(corvex::testing::AllocationCount() - allocated) / kEvaluations;
    }
};

// `step` 1.0: raw words of a packet. A fraction: what a linked value hands over.
bool Race(const std::string& equation, double step) {
    corvex::EquationEvaluator ours;
    corvex::testing::TextualEvaluator plain;
    double x = 0.0;
    mu::Parser compiled;
    ours.Parse(equation.c_str(), static_cast<unsigned>(equation.size()));
    plain.Parse(equation);
    compiled.DefineVar("X", &x);
    compiled.SetExpr(equation);

    Cost oursCost, plainCost, compiledCost;
    for (int round = 0; round < kRounds; ++round) {
        oursCost.Measure([&](int i) {
            ours.SetVariable('X', i * step);
            return ours.Evaluate();
        });
        plainCost.Measure([&](int i) {
            plain.SetVariable('X', i * step);
            return plain.Evaluate();
        });
        compiledCost.Measure([&](int i) {
            x = i * step;
            return compiled.Eval();
        });
    }
    const double ratio = plainCost.nanoseconds / oursCost.nanoseconds;
    std::printf("%-18s %-8s %8.1f %8.1f %8.1f %9.1fx %9.2fx %9.2f\n", equation.c_str(),
                step == 1.0 ? "whole" : "fraction", oursCost.nanoseconds, plainCost.nanoseconds,
                compiledCost.nanoseconds, ratio, compiledCost.nanoseconds / oursCost.nanoseconds, oursCost.allocations);
    return ratio >= kWantedRatio && oursCost.allocations == 0.0;
}

}  // namespace

int main() {
    std::printf("%-18s %-8s %8s %8s %8s %10s %10s %9s\n", "equation", "X", "ours ns", "text ns", "muparser",
                "text/ours", "mup./ours", "allocs");
    bool good = true;
    for (const char* equation : {"(X*0.75)-40", "X", "X*0.0048828125", "(X/255)*100", "((X-40)*1.8)+32"}) {
        for (const double step : {1.0, 0.37123})
            good = Race(equation, step) && good;
    }
    std::printf("at least %.1f times the textual evaluator, without allocations: %s\n", kWantedRatio,
                good ? "yes" : "NO");
    std::printf("a sign in front of a letter, which has to go through the text:\n");
    for (const double step : {1.0, 0.37123})
        Race("2*-X", step);
    return good ? 0 : 1;
}
