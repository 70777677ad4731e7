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
    double Native(ADXValue& value, std::uint32_t offset, std::uint32_t options = kReadAtOffset) {
        return value.GetNative(PacketView(kEightBytes, sizeof kEightBytes), offset, options);
    }

    ADXDefinition definition;
    ADXValue value;
};

TEST_F(ADXValueTest, StartsWithItsDefaults) {
    EXPECT_EQ(value.GetType(), 0x00000004u);
    EXPECT_EQ(value.flags, 0u);
    EXPECT_EQ(value.parentcmdidhash, 0u);
    EXPECT_EQ(value.packetoffset, 0u);
    EXPECT_EQ(value.sizeinbits, 8u);
    EXPECT_EQ(value.outputtype, 3u);
    EXPECT_EQ(value.digcount, 2u);
    EXPECT_EQ(value.GetVarCount(), 0u);
    EXPECT_EQ(value.alarmlow, 0.0F);
    EXPECT_EQ(value.alarmhigh, 255.0F);
    EXPECT_EQ(value.rangelow, 0.0F);
    EXPECT_EQ(value.rangehigh, 255.0F);
    EXPECT_EQ(value.unittype, 0u);
    EXPECT_EQ(value.datatype, 0u);
    EXPECT_EQ(value.lookupidhash, 0u);
    EXPECT_EQ(value.lookup, nullptr);
    EXPECT_EQ(value.GetRaw(nullptr), 0u);
    EXPECT_EQ(value.Compute(definition, nullptr), 0.0);
}

TEST_F(ADXValueTest, ReadsAByteUnsignedAndSigned) {
    EXPECT_EQ(Native(value, 4), 255.0);
    value.flags = ADXValue::kSigned;
    EXPECT_EQ(Native(value, 4), -1.0);
}

TEST_F(ADXValueTest, ReadsTwoBytesInEitherOrder) {
    value.sizeinbits = 16;
    const PacketView packet(kEightBytes, sizeof kEightBytes);
    EXPECT_EQ(value.GetRaw(packet), 0x1234u);
    EXPECT_EQ(value.GetRaw(packet, 0, kReadNoSwap), 0x3412u);
    value.flags = ADXValue::kLowByteFirst;
    EXPECT_EQ(value.GetRaw(packet), 0x3412u);
}

TEST_F(ADXValueTest, SignExtendsHalfAndWholeWords) {
    value.flags = ADXValue::kSigned;
    value.sizeinbits = 16;
    EXPECT_EQ(Native(value, 6), -2.0);
    value.sizeinbits = 32;
    EXPECT_EQ(Native(value, 4), -2.0);
}

TEST_F(ADXValueTest, CopiesThreeBytesWithoutASwapAndGivesThemNoSign) {
    value.sizeinbits = 24;
    EXPECT_EQ(Native(value, 0), double{0x563412});
    value.flags = ADXValue::kSigned;
    EXPECT_EQ(Native(value, 0), 0.0);
}

TEST_F(ADXValueTest, NeverReadsAnUnsignedWordBelowZero) {
    value.sizeinbits = 32;
    EXPECT_EQ(Native(value, 4), 4294967294.0);
}

TEST_F(ADXValueTest, ReadsOneByteForTwelveBits) {
    value.sizeinbits = 12;
    EXPECT_EQ(Native(value, 0), 18.0);
    value.flags = ADXValue::kSigned;
    EXPECT_EQ(Native(value, 0), 0.0);
}

TEST_F(ADXValueTest, TakesTheOffsetArgumentOnlyWhenAsked) {
    value.packetoffset = 1;
    EXPECT_EQ(Native(value, 3, 0), double{0x34});
    EXPECT_EQ(Native(value, 3, kReadAtOffset), double{0x78});
}

TEST_F(ADXValueTest, KeepsTheLastRawWord) {
    const PacketView packet(kEightBytes, sizeof kEightBytes);
    EXPECT_EQ(value.GetRaw(packet), 0x12u);
    EXPECT_EQ(value.GetRaw(nullptr), 0x12u);
    value.packetoffset = 8;
    EXPECT_EQ(value.GetRaw(packet), 0x12u);
}

TEST_F(ADXValueTest, AppliesTheEquationToRawZeroBeforeTheFirstPacket) {
    value.SetEquation("(X*0.75)-40", 11);
    EXPECT_EQ(value.Compute(definition, nullptr), -40.0);
    EXPECT_EQ(value.Compute(definition, PacketView(kEightBytes, 1)), 18 * 0.75 - 40);
}

TEST_F(ADXValueTest, CutsTheEquationAtTheLengthGiven) {
    value.SetEquation("X+Y", 1);
    EXPECT_EQ(value.GetVarCount(), 1u);
    char text[20];
    EXPECT_EQ(value.GetEquation(text, sizeof text), 2u);
    EXPECT_STREQ(text, "X");
}

TEST_F(ADXValueTest, MeasuresAMissingEquationAsOne) {
    char text[20] = "old";
    EXPECT_EQ(value.GetEquation(text, sizeof text), 1u);
    EXPECT_EQ(value.GetEquation(nullptr, 0), 1u);
}

TEST_F(ADXValueTest, MakesOneNativeVariablePerLetter) {
    EXPECT_EQ(value.SetEquation("b+(A*2)-b", 9), 1);
    ASSERT_EQ(value.GetVarCount(), 3u);
    ADXVar var;
    const char letters[] = {'b', 'A', 'b'};
    for (std::uint32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(value.GetVar(i, &var), 1);
        EXPECT_EQ(var.varid, letters[i]);
        EXPECT_EQ(var.type, 0u);
        EXPECT_EQ(var.linkidhash, 0u);
    }
    EXPECT_EQ(value.GetVar(3, &var), 0);
    EXPECT_EQ(value.GetVar(0, nullptr), 0);
}

TEST_F(ADXValueTest, SetsTheFirstVariableOfALetterAlone) {
    value.SetEquation("X+Y+X", 5);
    EXPECT_EQ(value.SetVar({ADXVar::kLink, 'X', 5}), 1);
    EXPECT_EQ(value.SetVar({ADXVar::kLink, 'Z', 5}), 0);
    ADXVar var;
    value.GetVar(0, &var);
    EXPECT_EQ(var.type, 1u);
    EXPECT_EQ(var.linkidhash, 5u);
    value.GetVar(2, &var);
    EXPECT_EQ(var.type, 0u);
}

TEST_F(ADXValueTest, ResetsItsVariablesWithANewEquation) {
    value.SetEquation("X", 1);
    value.SetVar({ADXVar::kLink, 'X', 5});
    value.SetEquation("X+1", 3);
    ADXVar var;
    ASSERT_EQ(value.GetVar(0, &var), 1);
    EXPECT_EQ(var.type, 0u);
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
    value.SetEquation("(X", 2);
    EXPECT_EQ(value.GetVarCount(), 0u);
    EXPECT_EQ(value.Compute(definition, PacketView(kEightBytes, 1)), 0.0);
}

TEST_F(ADXValueTest, CopiesUnits) {
    char text[20] = "old";
    EXPECT_EQ(value.GetUnits(text, sizeof text), 1u);
    EXPECT_STREQ(text, "");
    value.SetUnits("deg C", 5);
    EXPECT_EQ(value.GetUnits(text, sizeof text), 6u);
    EXPECT_STREQ(text, "deg C");
    EXPECT_EQ(value.GetUnits(text, 4), 4u);
    EXPECT_STREQ(text, "deg");
    EXPECT_EQ(value.GetUnits(nullptr, 4), 1u);
    EXPECT_EQ(value.GetUnits(text, 0), 1u);
    value.SetUnits("x", 0);
    EXPECT_STREQ(value.Units(), "");
}

TEST_F(ADXValueTest, NeverClampsToItsRange) {
    value.SetEquation("X*100", 5);
    EXPECT_EQ(value.Compute(definition, PacketView(kEightBytes, 1)), 1800.0);
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
