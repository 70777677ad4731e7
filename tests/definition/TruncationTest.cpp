#include <gtest/gtest.h>

#include <limits>

#include "definition/Truncation.h"

namespace corvex {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(TruncateToInt32, DropsTheFractionAndHasOneResultForWhatDoesNotFit) {
    const std::pair<double, std::int32_t> cases[] = {
        {7.9, 7}, {-7.9, -7}, {2147483647.9, INT32_MAX}, {-2147483648.9, INT32_MIN}};
    for (const auto& [number, whole] : cases)
        EXPECT_EQ(TruncateToInt32(number), whole) << number;
    for (const double number : {2147483648.0, -2147483649.0, kInfinity, -kInfinity, kNotANumber})
        EXPECT_EQ(TruncateToInt32(number), INT32_MIN) << number;
}

TEST(TruncateToWord, KeepsTheLow32BitsAndHasOneResultForWhatDoesNotFit) {
    const std::pair<double, std::uint32_t> cases[] = {
        {255.9, 255}, {-1.5, 0xFFFFFFFF}, {4294967295.0, 0xFFFFFFFF}, {4294967298.0, 2}, {-9223372036854775808.0, 0}};
    for (const auto& [number, word] : cases)
        EXPECT_EQ(TruncateToWord(number), word) << number;
    for (const double number : {9223372036854775808.0, -1e30, kInfinity, kNotANumber})
        EXPECT_EQ(TruncateToWord(number), 0u) << number;
}

}  // namespace
}  // namespace corvex
