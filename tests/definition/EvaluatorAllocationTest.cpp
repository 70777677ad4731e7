#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "definition/EquationEvaluator.h"
#include "tests/support/AllocationCount.h"

namespace corvex {
namespace {

TEST(AllocationCount, SeesAllocations) {
    const auto before = testing::AllocationCount();
    const std::vector<int> numbers(1000, 1);
    EXPECT_GT(testing::AllocationCount(), before);
    EXPECT_EQ(numbers.back(), 1);
}

// The precompiled way, the textual way (fused, negated, huge, infinite) and every failure.
TEST(EquationEvaluator, AllocatesNothingToEvaluate) {
    for (const std::string equation : {"(X*0.75)-40", "X", "2X+1", "2*-X", "X/0", "X+", "1.2.3-X", "X#2%7^1|X"}) {
        EquationEvaluator evaluator;
        ASSERT_EQ(evaluator.Parse(equation.c_str(), static_cast<unsigned>(equation.size())), 1) << equation;
        const auto before = testing::AllocationCount();
        for (const double value : {0.0, 1.5, -3.25, 0.1234565, 1e9 + 0.3, 1e150, 1e300, HUGE_VAL, -HUGE_VAL}) {
            evaluator.SetVariable('X', value);
            evaluator.Evaluate();
        }
        EXPECT_EQ(testing::AllocationCount(), before) << equation;
    }
}

}  // namespace
}  // namespace corvex
