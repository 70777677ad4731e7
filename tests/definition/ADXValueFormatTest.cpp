// How a value shows its number.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

// The text of a value whose equation is a number or an expression of numbers.
std::string Shown(std::uint32_t outputtype, std::uint8_t digcount, const char* equation, std::size_t size = 40) {
    const ADXDefinition definition;
    ADXValue value;
    value.SetEquation(equation, test::Length(equation));
    value.outputtype = outputtype;
    value.digcount = digcount;
    std::string text(300, '\0');
    text.replace(0, 9, "unchanged");
    value.Format(text.data(), size, definition, nullptr);
    return text.c_str();
}

TEST(ADXValueFormat, PadsIntegersToTheDigitCount) {
    EXPECT_EQ(Shown(ADXValue::kInteger, 2, "7"), "07");
    EXPECT_EQ(Shown(ADXValue::kInteger, 0, "7.9"), "7");
    EXPECT_EQ(Shown(ADXValue::kInteger, 2, "0-7.9"), "-07");
    EXPECT_EQ(Shown(ADXValue::kUnsigned, 3, "7"), "007");
}

TEST(ADXValueFormat, ShowsHexadecimal) {
    EXPECT_EQ(Shown(ADXValue::kHexadecimal, 2, "255"), "FF");
    EXPECT_EQ(Shown(ADXValue::kHexadecimal, 2, "0-1"), "FFFFFFFF");
    EXPECT_EQ(Shown(ADXValue::kHexadecimal, 2, "10.9"), "0A");
    EXPECT_EQ(Shown(ADXValue::kHexadecimal, 1, "4294967298"), "2");
}

TEST(ADXValueFormat, ShowsFloats) {
    EXPECT_EQ(Shown(ADXValue::kFloat, 2, "7"), "7.00");
    EXPECT_EQ(Shown(ADXValue::kFloat, 0, "2.5"), "2");
    EXPECT_EQ(Shown(ADXValue::kFloat, 3, "0-0.5"), "-0.500");
}

TEST(ADXValueFormat, HasOneResultForNumbersThatDoNotFit) {
    EXPECT_EQ(Shown(ADXValue::kInteger, 0, "3000000000"), "-2147483648");
    EXPECT_EQ(Shown(ADXValue::kUnsigned, 0, "3000000000"), "3000000000");
    EXPECT_EQ(Shown(ADXValue::kUnsigned, 0, "0-1"), "4294967295");
    EXPECT_EQ(Shown(ADXValue::kInteger, 0, "10#300"), "-2147483648");
    EXPECT_EQ(Shown(ADXValue::kUnsigned, 1, "10#300"), "0");
    EXPECT_EQ(Shown(ADXValue::kHexadecimal, 1, "0-(10#300)"), "0");
    EXPECT_EQ(Shown(ADXValue::kInteger, 0, "(0-1)#0.5"), "-2147483648");
    EXPECT_EQ(Shown(ADXValue::kHexadecimal, 2, "(0-1)#0.5"), "00");
    EXPECT_EQ(Shown(ADXValue::kFloat, 2, "10#400"), "inf");
}

TEST(ADXValueFormat, ShowsNoDigitOfAnIntegerZeroWithoutDigits) {
    EXPECT_EQ(Shown(ADXValue::kInteger, 0, "0"), "");
    EXPECT_EQ(Shown(ADXValue::kHexadecimal, 0, "0"), "");
    EXPECT_EQ(Shown(ADXValue::kFloat, 0, "0"), "0");
}

TEST(ADXValueFormat, LeavesTheBufferAloneForAnyOtherType) {
    EXPECT_EQ(Shown(4, 2, "7"), "unchanged");
    EXPECT_EQ(Shown(0xFFFFFFFF, 2, "7"), "unchanged");
}

TEST(ADXValueFormat, StaysWithinTheBuffer) {
    EXPECT_EQ(Shown(ADXValue::kFloat, 2, "1234567", 5), "1234");
    EXPECT_EQ(Shown(ADXValue::kFloat, 255, "1", 40), "1." + std::string(37, '0'));
    EXPECT_EQ(Shown(ADXValue::kFloat, 2, "7", 1), "");
    EXPECT_EQ(Shown(ADXValue::kFloat, 2, "7", 0), "unchanged");
}

TEST(ADXValueFormat, ReturnsTheNumberWithoutABuffer) {
    const ADXDefinition definition;
    ADXValue value;
    value.SetEquation("7", 1);
    EXPECT_EQ(value.Format(nullptr, 40, definition, nullptr), 7.0);
}

}  // namespace
}  // namespace corvex
