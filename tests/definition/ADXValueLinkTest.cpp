// Values that take their numbers from other values.
#include <gtest/gtest.h>

#include <string>

#include "definition/ADXBitmask.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

constexpr std::uint8_t kThreeBytes[] = {10, 20, 30};

class ADXValueLink : public testing::Test {
protected:
    double Compute(ADXValue* value) { return value->Compute(definition, PacketView(kThreeBytes, sizeof kThreeBytes)); }

    ADXDefinition definition;
};

TEST_F(ADXValueLink, RunsTheOthersOwnEquation) {
    auto* value = test::AddValue(definition, "A", "X+Y");
    auto* other = test::AddValue(definition, "B", "X*2");
    other->packetoffset = 2;
    test::Link(*value, 'Y', other->GetIdHash());
    EXPECT_EQ(Compute(value), 70.0);
}

TEST_F(ADXValueLink, NestsToAnyReasonableDepth) {
    auto* first = test::AddValue(definition, "A", "X+1");
    auto* second = test::AddValue(definition, "B", "X+1");
    auto* third = test::AddValue(definition, "C", "X+1");
    test::Link(*first, 'X', second->GetIdHash());
    test::Link(*second, 'X', third->GetIdHash());
    EXPECT_EQ(Compute(first), 13.0);
}

TEST_F(ADXValueLink, ReadsAValueOfAnotherCommandFromItsLastRawWord) {
    auto* value = test::AddValue(definition, "A", "X");
    auto* other = test::AddValue(definition, "B", "X");
    other->parentcmdidhash = 5;
    test::Link(*value, 'X', other->GetIdHash());
    const std::uint8_t earlier[] = {99};
    other->GetRaw(PacketView(earlier, 1));
    EXPECT_EQ(Compute(value), 99.0);
    value->parentcmdidhash = 5;
    EXPECT_EQ(Compute(value), 10.0);
}

TEST_F(ADXValueLink, PassesOffsetAndOptionsOn) {
    auto* value = test::AddValue(definition, "A", "X");
    auto* other = test::AddValue(definition, "B", "X");
    test::Link(*value, 'X', other->GetIdHash());
    EXPECT_EQ(value->Compute(definition, PacketView(kThreeBytes, 3), 2, kReadAtOffset), 30.0);
}

TEST_F(ADXValueLink, TakesTheVariableBeforeWhenUnresolved) {
    auto* value = test::AddValue(definition, "A", "Y-(X*2)");
    test::Link(*value, 'Y', 12345);
    // Y is the first and finds nothing: 0.0. X is 10.
    EXPECT_EQ(Compute(value), -20.0);
    value->SetVar({ADXVar::kNative, 'Y', 0});
    test::Link(*value, 'X', 12345);
    EXPECT_EQ(Compute(value), -10.0);
}

TEST_F(ADXValueLink, TreatsABitmaskAndAnUnknownTypeAsUnresolved) {
    auto* value = test::AddValue(definition, "A", "Y-(X*2)");
    auto* flag = test::Add<ADXBitmask>(definition, "B");
    test::Link(*value, 'X', flag->GetIdHash());
    EXPECT_EQ(Compute(value), -10.0);
    value->SetVar({7, 'X', 0});
    EXPECT_EQ(Compute(value), -10.0);
}

TEST_F(ADXValueLink, CutsAChainThatIsTooLong) {
    // Each value adds one to the next; the last one reads 10.
    constexpr unsigned kChain = 40;
    for (unsigned i = 0; i < kChain; ++i) {
        const std::string id = std::to_string(i);
        auto* value = test::AddValue(definition, id.c_str(), "X+1");
        const std::string next = std::to_string(i + 1);
        if (i + 1 < kChain) test::Link(*value, 'X', HashId(next.data(), static_cast<std::uint32_t>(next.size())));
    }
    // The value kLinkDepth links down can follow no further one, so its variable reads 0.0.
    EXPECT_EQ(Compute(static_cast<ADXValue*>(definition.GetObject(kTypeAny, 0))), ADXValue::kLinkDepth + 1.0);
    EXPECT_EQ(Compute(static_cast<ADXValue*>(definition.GetObject(kTypeAny, kChain - 1 - ADXValue::kLinkDepth))),
              10.0 + ADXValue::kLinkDepth + 1.0);
}

TEST_F(ADXValueLink, SurvivesAValueLinkedToItself) {
    auto* value = test::AddValue(definition, "A", "X+1");
    test::Link(*value, 'X', value->GetIdHash());
    EXPECT_EQ(Compute(value), ADXValue::kLinkDepth + 1.0);
}

TEST_F(ADXValueLink, SurvivesACycleThatBranches) {
    // Without a budget these would be 26 to the power of 32 computations.
    const char* equation = "A+B+C+D+E+F+G+H+I+J+K+L+M+N+O+P+Q+R+S+T+U+V+W+X+Y+Z";
    auto* value = test::AddValue(definition, "A", equation);
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        test::Link(*value, letter, value->GetIdHash());
    }
    const double result = Compute(value);
    EXPECT_EQ(result, Compute(value));
}

}  // namespace
}  // namespace corvex
