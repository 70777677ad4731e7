// How a value shows its number.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/DefinitionTestHelper.h"

namespace corvex {
namespace {

// The text of a value whose equation is a number or an expression of numbers.
std::string Shown(std::uint32_t outputtype, std::uint8_t digcount, const char* equation, std::size_t size) {
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

TEST(ADXValueFormat, ShowsEachOutputType) {
    const struct {
        std::uint32_t outputtype;
        std::uint8_t digcount;
        const char* equation;
        std::string text;
        std::size_t size = 40;
    } cases[] = {
        // Integers are padded to the digit count; a zero without digits shows none.
        {ADXValue::kInteger, 2, "7", "07"},
        {ADXValue::kInteger, 0, "7.9", "7"},
        {ADXValue::kInteger, 2, "0-7.9", "-07"},
        {ADXValue::kUnsigned, 3, "7", "007"},
        {ADXValue::kInteger, 0, "0", ""},
        {ADXValue::kHexadecimal, 0, "0", ""},
        {ADXValue::kHexadecimal, 2, "255", "FF"},
        {ADXValue::kHexadecimal, 2, "0-1", "FFFFFFFF"},
        {ADXValue::kHexadecimal, 2, "10.9", "0A"},
        {ADXValue::kHexadecimal, 1, "4294967298", "2"},
        {ADXValue::kFloat, 2, "7", "7.00"},
        {ADXValue::kFloat, 0, "2.5", "2"},
        {ADXValue::kFloat, 0, "0", "0"},
        {ADXValue::kFloat, 3, "0-0.5", "-0.500"},
        // Numbers that do not fit have one result.
        {ADXValue::kInteger, 0, "3000000000", "-2147483648"},
        {ADXValue::kUnsigned, 0, "3000000000", "3000000000"},
        {ADXValue::kUnsigned, 0, "0-1", "4294967295"},
        {ADXValue::kInteger, 0, "10#300", "-2147483648"},
        {ADXValue::kUnsigned, 1, "10#300", "0"},
        {ADXValue::kHexadecimal, 1, "0-(10#300)", "0"},
        {ADXValue::kInteger, 0, "(0-1)#0.5", "-2147483648"},
        {ADXValue::kHexadecimal, 2, "(0-1)#0.5", "00"},
        {ADXValue::kFloat, 2, "10#400", "inf"},
        // Any other type leaves the buffer alone.
        {4, 2, "7", "unchanged"},
        {0xFFFFFFFF, 2, "7", "unchanged"},
        // Within the buffer.
        {ADXValue::kFloat, 2, "1234567", "1234", 5},
        {ADXValue::kFloat, 255, "1", "1." + std::string(37, '0')},
        {ADXValue::kFloat, 2, "7", "", 1},
        {ADXValue::kFloat, 2, "7", "unchanged", 0},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Shown(one.outputtype, one.digcount, one.equation, one.size), one.text) << one.equation;
}

TEST(ADXValueFormat, ReturnsTheNumberWithoutABuffer) {
    const ADXDefinition definition;
    ADXValue value;
    value.SetEquation("7", 1);
    EXPECT_EQ(value.Format(nullptr, 40, definition, nullptr), 7.0);
}

}  // namespace
}  // namespace corvex
