#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "definition/ADXLookupTable.h"
#include "definition/ADXValue.h"
#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

constexpr std::uint8_t kEightBytes[] = {0x12, 0x34, 0x56, 0x78, 0xFF, 0xFF, 0xFF, 0xFE};

class ADXValueTest : public testing::Test {
protected:
    ADXDefinition definition;
    ADXValue value;
};

TEST_F(ADXValueTest, ReadsItsNumberFromThePacket) {
    const struct {
        std::uint32_t bits, flags, offset;
        double number;
    } cases[] = {
        {8, 0, 4, 255.0},
        {8, ADXValue::kSigned, 4, -1.0},
        {16, 0, 0, 0x1234},
        {16, ADXValue::kSigned, 6, -2.0},
        {32, ADXValue::kSigned, 4, -2.0},
        {32, 0, 4, 4294967294.0},         // an unsigned word is never below zero
        {24, ADXValue::kSigned, 0, 0.0},  // a sign have one, two and four bytes alone
        {12, ADXValue::kSigned, 0, 0.0},
    };
    for (const auto& one : cases) {
        value.sizeinbits = one.bits;
        value.flags = one.flags;
        EXPECT_EQ(value.GetNative(kEightBytes, one.offset, kReadAtOffset), one.number) << one.bits << ", " << one.flags;
    }
}

TEST_F(ADXValueTest, AppliesTheEquationToRawZeroBeforeTheFirstPacket) {
    value.SetEquation("(X*75)-40", 9);
    EXPECT_EQ(value.Compute(definition, nullptr), -40.0);
    EXPECT_EQ(value.Compute(definition, PacketView(kEightBytes, 1)), 1310.0) << "its range does not clamp it";
}

TEST_F(ADXValueTest, MakesOneNativeVariablePerLetter) {
    EXPECT_EQ(value.SetEquation("b+(A*2)-b+Z", 9), 1) << "cut at the length given";
    ASSERT_EQ(value.GetVarCount(), 3u);
    ADXVar var;
    for (std::uint32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(value.GetVar(i, &var), 1);
        EXPECT_EQ(var.varid, "bAb"[i]);
        EXPECT_EQ(var.type, 0u);
        EXPECT_EQ(var.linkidhash, 0u);
    }
    EXPECT_EQ(value.GetVar(3, &var), 0);
    EXPECT_EQ(value.GetVar(0, nullptr), 0);
}

TEST_F(ADXValueTest, SetsTheFirstVariableOfALetterAloneUntilANewEquation) {
    value.SetEquation("X+Y+X", 5);
    EXPECT_EQ(value.SetVar({ADXVar::kLink, 'X', 5}), 1);
    EXPECT_EQ(value.SetVar({ADXVar::kLink, 'Z', 5}), 0);
    ADXVar first, last;
    value.GetVar(0, &first);
    value.GetVar(2, &last);
    EXPECT_EQ(first.type, 1u);
    EXPECT_EQ(first.linkidhash, 5u);
    EXPECT_EQ(last.type, 0u);
    value.SetEquation("X+1", 3);
    ASSERT_EQ(value.GetVar(0, &first), 1);
    EXPECT_EQ(first.type, 0u);
}

TEST_F(ADXValueTest, KeepsItsVariablesInStepWhenAnEquationDoesNotParse) {
    value.SetEquation("X*2", 3);
    EXPECT_EQ(value.SetEquation("(Y+Z", 4), 1);
    ADXVar var;
    ASSERT_EQ(value.GetVarCount(), 1u);
    value.GetVar(0, &var);
    EXPECT_EQ(var.varid, 'X');
    EXPECT_EQ(value.Compute(definition, PacketView(kEightBytes, 1)), 36.0);
    char text[20];
    EXPECT_EQ(value.GetEquation(text, sizeof text), 5u);
    EXPECT_STREQ(text, "(Y+Z");
    EXPECT_EQ(value.SetEquation(nullptr, 4), 1);
    EXPECT_EQ(value.GetVarCount(), 1u);
}

TEST_F(ADXValueTest, ReadsZeroWithoutAnEquationThatParsed) {
    EXPECT_EQ(value.GetEquation(nullptr, 0), 1u);
    for (const char* equation : {"", "(X"}) {
        value.SetEquation(equation, test::Length(equation));
        EXPECT_EQ(value.GetVarCount(), 0u);
        EXPECT_EQ(value.Compute(definition, PacketView(kEightBytes, 1)), 0.0);
    }
}

TEST_F(ADXValueTest, CopiesUnits) {
    char text[20] = "old";
    EXPECT_EQ(value.GetUnits(text, sizeof text), 1u);
    EXPECT_STREQ(text, "");
    value.SetUnits("deg C", 5);
    EXPECT_EQ(value.GetUnits(text, sizeof text), 6u);
    EXPECT_STREQ(text, "deg C");
    value.SetUnits("x", 0);
    EXPECT_STREQ(value.Units(), "");
}

class LookupTest : public ADXValueTest {
protected:
    void SetUp() override {
        value.SetEquation("X", 1);
        value.lookup = &table;
        table.AddEntry(10, 100);
        table.AddEntry(20, 200);
    }

    std::string Formatted(std::uint32_t options = 0) {
        char text[40] = "unchanged";
        number = value.Format(text, sizeof text, definition, PacketView(kEightBytes, 1), 0, options);
        return text;
    }

    ADXLookupTable table;
    double number = 0.0;
};

TEST_F(LookupTest, ConvertsTheResultOfTheEquation) {
    EXPECT_EQ(value.Compute(definition, PacketView(kEightBytes, 1)), 180.0);
    EXPECT_EQ(value.Compute(definition, PacketView(kEightBytes, 1), 0, kReadBeforeTable), 18.0);
}

TEST_F(LookupTest, ShowsTheTablesNumberAndReturnsTheOneBefore) {
    EXPECT_EQ(Formatted(), "180.00");
    EXPECT_EQ(number, 18.0);
    EXPECT_EQ(Formatted(kReadBeforeTable), "18.00");
    table.SetOutputType(ADXLookupTable::kHexadecimal);
    EXPECT_EQ(Formatted(), "0xB4");
}

TEST_F(LookupTest, ReadsZeroFromATextTableAndShowsItsText) {
    table.Reset();
    table.SetOutputType(ADXLookupTable::kText);
    table.AddEntryText(10, "Open", 4);
    table.AddEntryText(20, "Closed", 6);
    EXPECT_EQ(value.Compute(definition, PacketView(kEightBytes, 1)), 0.0);
    EXPECT_EQ(Formatted(), "Closed");
    EXPECT_EQ(number, 18.0);
}

TEST_F(LookupTest, LinksPassTheirTableByWhenItIsNotToBeApplied) {
    auto* outer = test::AddValue(definition, "OUT", "X");
    auto* inner = test::AddValue(definition, "IN", "X");
    inner->lookup = &table;
    test::Link(*outer, 'X', inner->GetIdHash());
    const PacketView packet(kEightBytes, 1);
    EXPECT_EQ(outer->Compute(definition, packet), 180.0);
    EXPECT_EQ(outer->Compute(definition, packet, 0, kReadBeforeTable), 18.0);
}

}  // namespace
}  // namespace corvex
