#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "controls/gauge/GaugeNumberModel.h"

namespace corvex {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kLargest = 3.4028235e38f, kSmallest = 1.1754944e-38f;

TEST(GaugeNumberModelTest, WholeValueHasNoDecimalsAndAnyOtherHas) {
    EXPECT_EQ(FormatGaugeNumber(12.0f, 2), "12");
    EXPECT_EQ(FormatGaugeNumber(12.5f, 2), "12.50");
    EXPECT_EQ(FormatGaugeNumber(-3.0f, 2), "-3");
    EXPECT_EQ(FormatGaugeNumber(-3.25f, 1), "-3.2");
    EXPECT_EQ(FormatGaugeNumber(0.75f, 0), "1");
    EXPECT_EQ(FormatGaugeNumber(-0.0f, 2), "0");
}

TEST(GaugeNumberModelTest, WholeValueBeyondTheWordOverflows) {
    EXPECT_EQ(FormatGaugeNumber(kLargest, 2), "-2147483648");
    EXPECT_EQ(FormatGaugeNumber(2147483648.0f, 2), "-2147483648");
    EXPECT_EQ(FormatGaugeNumber(-kLargest, 2), "-2147483648");
    EXPECT_EQ(FormatGaugeNumber(2147483520.0f, 2), "2147483520");
    EXPECT_EQ(FormatGaugeNumber(kSmallest, 2), "0.00");
}

TEST(GaugeNumberModelTest, WhatIsNoNumberIsPrintedAsSuch) {
    EXPECT_EQ(FormatGaugeNumber(kInfinity, 2), "inf");
    EXPECT_EQ(FormatGaugeNumber(-kInfinity, 2), "-inf");
    EXPECT_NE(FormatGaugeNumber(std::numeric_limits<float>::quiet_NaN(), 2).find("nan"), std::string::npos);
}

TEST(GaugeNumberModelTest, CutsDecimalsToItsBuffer) {
    const std::string text = FormatGaugeNumber(0.5f, 0x7FFFFFFF);
    EXPECT_EQ(text, "0.5" + std::string(251, '0'));
    EXPECT_EQ(FormatGaugeNumber(0.5f, 400), text);
    EXPECT_EQ(FormatGaugeNumber(0.5f, 252), text);
    EXPECT_EQ(FormatGaugeNumber(0.5f, 251), text.substr(0, 253));
}

TEST(GaugeNumberModelTest, DecimalsThatAreNegativeCountAsNotGiven) {
    EXPECT_EQ(FormatGaugeNumber(12.5f, 0xFFFFFFFF), "12.500000");
    EXPECT_EQ(FormatGaugeNumber(12.5f, 0x80000000), "12.500000");
}

TEST(GaugeNumberModelTest, CutsToTheCapacityTold) {
    EXPECT_EQ(FormatDecimals(123.5f, 2, 25), "123.50");
    EXPECT_EQ(FormatDecimals(123.5f, 2, 5), "123.");
    EXPECT_EQ(FormatDecimals(123.5f, 2, 1), "");
    EXPECT_EQ(FormatDecimals(123.5f, 2, 0), "");
    EXPECT_EQ(FormatDecimals(kLargest, 2, 25), "340282346638528859811704");
    EXPECT_EQ(FormatDecimals(0.5f, 0x7FFFFFFF, 1000).size(), 254u);
}

TEST(GaugeNumberModelTest, WholeFormatCutsAndPads) {
    EXPECT_EQ(FormatWhole(0.99f, 1, 25), "0");
    EXPECT_EQ(FormatWhole(-0.99f, 1, 25), "0");
    EXPECT_EQ(FormatWhole(7.9f, 3, 25), "007");
    EXPECT_EQ(FormatWhole(-7.9f, 3, 25), "-007");
    EXPECT_EQ(FormatWhole(5e9f, 1, 25), "-2147483648");
    EXPECT_EQ(FormatWhole(7.0f, 0x7FFFFFFF, 25), std::string(24, '0'));
}

TEST(GaugeNumberModelTest, TruncatesTowardZeroAndOverflowsToTheLowestWord) {
    EXPECT_EQ(TruncateGaugeValue(1.9f), 1);
    EXPECT_EQ(TruncateGaugeValue(-1.9f), -1);
    EXPECT_EQ(TruncateGaugeValue(2147483520.0f), 2147483520);
    EXPECT_EQ(TruncateGaugeValue(-2147483648.0f), INT32_MIN);
    for (const float value : {2147483648.0f, -2147483904.0f, kLargest, kInfinity, -kInfinity, std::nanf("")})
        EXPECT_EQ(TruncateGaugeValue(value), INT32_MIN) << value;
}

}  // namespace
}  // namespace corvex
