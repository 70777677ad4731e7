// A program of its own, because it counts every allocation made in it.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "definition/ADXBitmask.h"
#include "definition/EquationEvaluator.h"
#include "tests/support/AllocationCount.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

TEST(UpdateValues, AllocatesNothing) {
    ADXDefinition definition;
    for (std::uint32_t i = 0; i < 60; ++i) {
        auto* value = test::AddValue(definition, "V", "(X*0.75)-40");
        value->packetoffset = i;
        test::Add<ADXBitmask>(definition, "B")->packetoffset = i;
    }
    std::uint8_t packet[60] = {};
    const std::uint64_t before = testing::AllocationCount();
    ASSERT_NE(before, 0u);
    for (unsigned round = 1; round <= 100; ++round) {
        packet[59] = static_cast<std::uint8_t>(round);
        definition.UpdateValues(PacketView(packet, sizeof packet), 1);
    }
    EXPECT_EQ(testing::AllocationCount(), before);
    EXPECT_EQ(static_cast<ADXValue*>(definition.GetObject(kTypeValue, 59))->GetRaw(nullptr), 100u);
}

TEST(Compute, AllocatesNothing) {
    ADXDefinition definition;
    auto* value = test::AddValue(definition, "A", "(X*0.75)-Y");
    auto* other = test::AddValue(definition, "B", "X/255");
    test::Link(*value, 'Y', other->GetIdHash());
    const std::uint8_t packet[] = {80};
    char text[40];
    value->Format(text, sizeof text, definition, PacketView(packet, 1));
    const std::uint64_t before = testing::AllocationCount();
    for (int round = 0; round < 100; ++round) {
        value->Format(text, sizeof text, definition, PacketView(packet, 1));
    }
    EXPECT_EQ(testing::AllocationCount(), before);
    EXPECT_STREQ(text, "59.69");
}

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
