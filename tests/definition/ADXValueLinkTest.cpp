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
    // Two values; a letter of the first stands for the second.
    void LinkTwo(const char* equation, char letter, const char* othersEquation = "X") {
        value = test::AddValue(definition, "A", equation);
        other = test::AddValue(definition, "B", othersEquation);
        test::Link(*value, letter, other->GetIdHash());
    }

    ADXDefinition definition;
    ADXValue *value = nullptr, *other = nullptr;
};

TEST_F(ADXValueLink, RunsTheOthersOwnEquation) {
    LinkTwo("X+Y", 'Y', "X*2");
    other->packetoffset = 2;
    EXPECT_EQ(Compute(value), 70.0);
}

TEST_F(ADXValueLink, ReadsAValueOfAnotherCommandFromItsLastRawWord) {
    LinkTwo("X", 'X');
    other->parentcmdidhash = 5;
    const std::uint8_t earlier[] = {99};
    other->GetRaw(PacketView(earlier, 1));
    EXPECT_EQ(Compute(value), 99.0);
    value->parentcmdidhash = 5;
    EXPECT_EQ(Compute(value), 10.0);
}

TEST_F(ADXValueLink, PassesOffsetAndOptionsOn) {
    LinkTwo("X", 'X');
    EXPECT_EQ(value->Compute(definition, PacketView(kThreeBytes, 3), 2, kReadAtOffset), 30.0);
}

TEST_F(ADXValueLink, TakesTheVariableBeforeWhenUnresolved) {
    value = test::AddValue(definition, "A", "Y-(X*2)");
    auto* flag = test::Add<ADXBitmask>(definition, "B");
    test::Link(*value, 'Y', 12345);
    EXPECT_EQ(Compute(value), -20.0);  // Y is the first and finds nothing: 0.0. X is 10
    value->SetVar({ADXVar::kNative, 'Y', 0});
    for (const ADXVar& var :
         {ADXVar{ADXVar::kLink, 'X', 12345}, {ADXVar::kLink, 'X', flag->GetIdHash()}, {7, 'X', 0}}) {
        value->SetVar(var);
        EXPECT_EQ(Compute(value), -10.0) << var.type << ", " << var.linkidhash;
    }
}

TEST_F(ADXValueLink, CutsAChainThatIsTooLong) {
    // Each value adds one to the next; the last one reads 10.
    constexpr unsigned kChain = 40;
    for (unsigned i = 0; i < kChain; ++i) {
        const std::string id = std::to_string(i);
        value = test::AddValue(definition, id.c_str(), "X+1");
        const std::string next = std::to_string(i + 1);
        if (i + 1 < kChain) test::Link(*value, 'X', HashId(next.data(), static_cast<std::uint32_t>(next.size())));
    }
    // The value kLinkDepth links down can follow no further one, so its variable reads 0.0.
    EXPECT_EQ(Compute(static_cast<ADXValue*>(definition.GetObject(kTypeAny, 0))), ADXValue::kLinkDepth + 1.0);
    EXPECT_EQ(Compute(static_cast<ADXValue*>(definition.GetObject(kTypeAny, kChain - 1 - ADXValue::kLinkDepth))),
              10.0 + ADXValue::kLinkDepth + 1.0);
}

TEST_F(ADXValueLink, SurvivesAValueLinkedToItself) {
    value = test::AddValue(definition, "A", "X+1");
    test::Link(*value, 'X', value->GetIdHash());
    EXPECT_EQ(Compute(value), ADXValue::kLinkDepth + 1.0);
    // Without a budget these would be 26 to the power of 32 computations.
    value = test::AddValue(definition, "B", "A+B+C+D+E+F+G+H+I+J+K+L+M+N+O+P+Q+R+S+T+U+V+W+X+Y+Z");
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        test::Link(*value, letter, value->GetIdHash());
    const double result = Compute(value);
    EXPECT_EQ(result, Compute(value));
}

}  // namespace
}  // namespace corvex
