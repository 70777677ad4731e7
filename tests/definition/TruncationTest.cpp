#include <gtest/gtest.h>

#include <limits>

#include "definition/Truncation.h"

namespace corvex {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(TruncateToInt32, DropsTheFractionTowardZero) {
    EXPECT_EQ(TruncateToInt32(7.9), 7);
    EXPECT_EQ(TruncateToInt32(-7.9), -7);
    EXPECT_EQ(TruncateToInt32(2147483647.9), INT32_MAX);
    EXPECT_EQ(TruncateToInt32(-2147483648.9), INT32_MIN);
}

TEST(TruncateToInt32, HasOneResultForWhatDoesNotFit) {
    EXPECT_EQ(TruncateToInt32(2147483648.0), INT32_MIN);
    EXPECT_EQ(TruncateToInt32(-2147483649.0), INT32_MIN);
    EXPECT_EQ(TruncateToInt32(kInfinity), INT32_MIN);
    EXPECT_EQ(TruncateToInt32(-kInfinity), INT32_MIN);
    EXPECT_EQ(TruncateToInt32(kNotANumber), INT32_MIN);
}

TEST(TruncateToWord, KeepsTheLow32Bits) {
    EXPECT_EQ(TruncateToWord(255.9), 255u);
    EXPECT_EQ(TruncateToWord(-1.5), 0xFFFFFFFFu);
    EXPECT_EQ(TruncateToWord(4294967295.0), 0xFFFFFFFFu);
    EXPECT_EQ(TruncateToWord(4294967298.0), 2u);
    EXPECT_EQ(TruncateToWord(-9223372036854775808.0), 0u);
}

TEST(TruncateToWord, HasOneResultForWhatDoesNotFit) {
    EXPECT_EQ(TruncateToWord(9223372036854775808.0), 0u);
    EXPECT_EQ(TruncateToWord(-1e30), 0u);
    EXPECT_EQ(TruncateToWord(kInfinity), 0u);
    EXPECT_EQ(TruncateToWord(kNotANumber), 0u);
}

}  // namespace
}  // namespace corvex
