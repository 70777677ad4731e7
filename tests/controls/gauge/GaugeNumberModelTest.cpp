#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "controls/gauge/GaugeNumberModel.h"

namespace corvex {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kLargest = 3.4028235e38f, kSmallest = 1.1754944e-38f;

struct Printed {
    float value;
    std::uint32_t digits;
    std::string text;
    std::size_t capacity = 25;
};

// Whole ones beyond the word overflow. Decimals that are negative count as not given, many are cut to the buffer.
TEST(GaugeNumberModelTest, WholeValueHasNoDecimalsAndAnyOtherHas) {
    const Printed cases[] = {{12.0f, 2, "12"},
                             {12.5f, 2, "12.50"},
                             {-3.0f, 2, "-3"},
                             {-3.25f, 1, "-3.2"},
                             {0.75f, 0, "1"},
                             {-0.0f, 2, "0"},
                             {kSmallest, 2, "0.00"},
                             {kInfinity, 2, "inf"},
                             {-kInfinity, 2, "-inf"},
                             {2147483520.0f, 2, "2147483520"},
                             {2147483648.0f, 2, "-2147483648"},
                             {kLargest, 2, "-2147483648"},
                             {-kLargest, 2, "-2147483648"},
                             {12.5f, 0xFFFFFFFF, "12.500000"},
                             {12.5f, 0x80000000, "12.500000"},
                             {0.5f, 0x7FFFFFFF, "0.5" + std::string(251, '0')},
                             {0.5f, 252, "0.5" + std::string(251, '0')},
                             {0.5f, 251, "0.5" + std::string(250, '0')}};
    for (const Printed& c : cases)
        EXPECT_EQ(FormatGaugeNumber(c.value, c.digits), c.text) << c.value << " " << c.digits;
    EXPECT_NE(FormatGaugeNumber(std::nanf(""), 2).find("nan"), std::string::npos);
}

TEST(GaugeNumberModelTest, DecimalsAreRoundedAndCutToTheCapacityTold) {
    const Printed cases[] = {{12.346f, 2, "12.35"},
                             {-3.5f, 0, "-4"},  // to even, as everywhere
                             {0.1f, 12, "0.100000001490"},
                             {-kInfinity, 2, "-inf"},
                             {0.5f, 0x80000000, "0.500000"},
                             {0.5f, 0x7FFFFFFF, "0.5000000000000000000000"},
                             {kLargest, 2, "340282346638528859811704"},
                             {123.5f, 2, "123.", 5},
                             {123.5f, 2, "", 1},
                             {123.5f, 2, "", 0}};
    for (const Printed& c : cases)
        EXPECT_EQ(FormatDecimals(c.value, c.digits, c.capacity), c.text) << c.value << " " << c.capacity;
    EXPECT_EQ(FormatDecimals(0.5f, 0x7FFFFFFF, 1000).size(), 254u);
}

TEST(GaugeNumberModelTest, WholeFormatTruncatesPadsAndCuts) {
    const Printed cases[] = {{0.99f, 1, "0"},
                             {-0.99f, 1, "0"},
                             {-1.99f, 1, "-1"},
                             {7.9f, 3, "007"},
                             {-7.9f, 3, "-007"},
                             {1234.0f, 3, "1234"},
                             {0.0f, 0, ""},
                             {7.0f, 0, "7"},
                             {7.0f, 0x80000000, "7"},
                             {5e9f, 1, "-2147483648"},
                             {7.0f, 0x7FFFFFFF, std::string(24, '0')},
                             {-7.0f, 0x7FFFFFFF, "-" + std::string(23, '0')}};
    for (const Printed& c : cases)
        EXPECT_EQ(FormatWhole(c.value, c.digits, c.capacity), c.text) << c.value;
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
