#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "definition/FixedDecimal.h"
#include "tests/support/EvaluatorComparison.h"

namespace corvex {
namespace {

using testing::SameNumber;

std::string ByLibrary(double value) {
    char text[400];
    std::snprintf(text, sizeof text, "%f", value);
    return text;
}

std::string Ours(double value) {
    char text[400];
    const std::size_t n = PrintFixed(value, text);
    return {text, n};
}

// Digits, the number read back, and the short way, against printf and strtod.
void Compare(double value) {
    const std::string expected = ByLibrary(value);
    ASSERT_EQ(Ours(value), expected);
    double read = 0.0;
    ASSERT_TRUE(ReadNumber(expected, read)) << expected;
    ASSERT_PRED2(SameNumber, read, std::strtod(expected.c_str(), nullptr)) << expected;
    ASSERT_PRED2(SameNumber, RoundToSixDecimals(value), std::strtod(expected.c_str(), nullptr)) << expected;
}

void CompareNeighbours(double value) {
    Compare(value);
    Compare(-value);
    Compare(std::nextafter(value, 1e308));
    Compare(std::nextafter(value, -1e308));
}

// The halves are numbers whose seventh decimal is a five: exact ties, and those that binary puts just beside.
TEST(FixedDecimal, AgreesOnRandomBitPatternsSizesAndHalves) {
    std::mt19937_64 random(20240607);
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    for (int i = 0; i < 100000; ++i) {
        const double pattern = std::bit_cast<double>(random());
        if (std::isfinite(pattern)) Compare(pattern);
        for (int size = 0; size < 4; ++size)
            Compare(std::ldexp(unit(random), (4 * i + size) % 80 - 24));
        const auto whole = static_cast<double>(random() >> (12 + i % 52));
        CompareNeighbours((whole + 0.5) / 1e6);
        CompareNeighbours(whole / 128.0);
        CompareNeighbours(whole * 0.0078125 + 0.0078125 / 2.0);
        if (::testing::Test::HasFatalFailure()) return;
    }
}

TEST(FixedDecimal, AgreesAtTheEdges) {
    for (const double value :
         {0.0, 5e-324, 1e-310, std::numeric_limits<double>::min(), 4.9999999999999998e-7, 5e-7, 1.0, 999999.9999995,
          1073741824.0, 1073741823.9999995, 2251799813685248.0, 2251799813685247.5, 4503599627370496.5,
          9007199254740993.0, 1e15, 1e22, 1e23, 1e100, 1.7e308})
        CompareNeighbours(value);
    Compare(std::numeric_limits<double>::max());
    Compare(-std::numeric_limits<double>::max());
}

TEST(FixedDecimal, PrintsInfinitiesAndNanTheSameEverywhere) {
    const double infinity = std::numeric_limits<double>::infinity();
    const std::pair<double, const char*> cases[] = {
        {infinity, "inf"}, {-infinity, "-inf"}, {std::nan(""), "nan"}, {-std::nan(""), "nan"}};
    for (const auto& [number, text] : cases)
        EXPECT_EQ(Ours(number), text);
}

TEST(FixedDecimal, CutsAtTheRoomGiven) {
    char text[] = "????????";
    EXPECT_EQ(PrintFixed(123.25, std::span(text, 5)), 10U);
    EXPECT_STREQ(text, "123.2???");
    EXPECT_EQ(PrintFixed(1.0, std::span(text, 0)), 8U);
    EXPECT_STREQ(text, "123.2???");
}

// Every token of digits, points and the letters that printed numbers hold is read or refused as strtod does.
TEST(FixedDecimal, ReadsTokensAsTheLibraryDoes) {
    std::mt19937 random(3);
    const std::string alphabet = "0123456789.0015";
    for (int i = 0; i < 200000; ++i) {
        std::string token = random() % 4 == 0 ? "-" : "";
        for (std::size_t n = random() % (i % 10 == 0 ? 199 : 24); n > 0; --n) {
            token += alphabet[random() % (i % 3 == 0 ? alphabet.size() : 10)];
            if (random() % 17 == 0 && token.find('.') == std::string::npos) token += '.';
        }
        char* end = nullptr;
        const double expected = std::strtod(token.c_str(), &end);
        const bool whole = end == token.c_str() + token.size() && end != token.c_str();
        double read = -1.0;
        ASSERT_EQ(ReadNumber(token, read), whole) << token;
        ASSERT_PRED2(SameNumber, read, whole ? expected : -1.0) << token;
    }
}

TEST(FixedDecimal, ReadsOnlyWholeTokens) {
    double value = -1.0;
    for (const char* token : {"", "-", ".", "1.2.3", "inf2", "infinf", "nan1", "3inf", "--3", "+3", "*5", " 5"}) {
        EXPECT_FALSE(ReadNumber(token, value)) << token;
        EXPECT_EQ(value, -1.0) << token;
    }
    EXPECT_TRUE(ReadNumber("inf", value));
    EXPECT_TRUE(std::isinf(value));
    EXPECT_TRUE(ReadNumber("nan", value));
    EXPECT_TRUE(std::isnan(value));
    EXPECT_TRUE(ReadNumber("-0.000000", value));
    EXPECT_TRUE(std::signbit(value));
}

}  // namespace
}  // namespace corvex
