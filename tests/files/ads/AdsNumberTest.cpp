#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "files/ads/AdsNumber.h"

namespace corvex {
namespace {

constexpr double kHuge = std::numeric_limits<double>::infinity();

TEST(AdsNumber, ReadsAsAtofDoes) {
    for (const char* text : {"1",    "-1.5",  " \t+2.25", ".5",      "5.",  "-.75x", "1e3",
                             "1E-3", "1e",    "1e+",      "2.5e2.5", "",    "-",     "-x",
                             "-0",   "+-1",   "--1",      ".",       "abc", "0.1",   "123456789012345678",
                             "1,5",  "00012", "4.9e-324", "1 2"}) {
        EXPECT_EQ(PlainDecimal(text), std::atof(text)) << text;
        EXPECT_EQ(std::signbit(PlainDecimal(text)), std::signbit(std::atof(text))) << text;
    }
}

TEST(AdsNumber, WordsAreNoNumbersAndOverlongOnesSaturate) {
    const std::pair<std::string, double> cases[] = {
        {"inf", 0.0},
        {"nan", 0.0},
        {"-inf", 0.0},
        {"0x1F", 0.0},
        {"1F", 1.0},
        {"1e999", kHuge},
        {"-1e99999999999999999999", -kHuge},
        {"1e-999", 0.0},
        {"0e99999999999999999999", 0.0},
        {"0.0000001e-99999999999999999999", 0.0},
        {std::string(400, '9'), kHuge},
        {"0." + std::string(400, '0') + "1", 0.0},
        {"0." + std::string(400, '0') + "1e401", 1.0},
    };
    for (const auto& [text, number] : cases)
        EXPECT_EQ(PlainDecimal(text), number) << text;
    EXPECT_EQ(PlainDecimalFloat("1e39"), std::numeric_limits<float>::infinity());
    EXPECT_EQ(PlainDecimalFloat("-1e39"), -std::numeric_limits<float>::infinity());
    EXPECT_EQ(PlainDecimalFloat("0.1"), 0.1F);
}

TEST(AdsNumber, PrintsAsPrintfDoes) {
    for (const double number : {0.0, -0.0, 1.0, 0.125, 2.675, -40.005, 1e15, 1e300, 255.0 / 7}) {
        char text[400];
        std::snprintf(text, sizeof text, "%.2f", number);
        EXPECT_EQ(TwoDecimals(number), text);
        std::snprintf(text, sizeof text, "%f", number);
        EXPECT_EQ(SixDecimals(number), text);
    }
}

TEST(AdsNumber, TheLocaleMeansNothing) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    // Where there is no such locale the case proves nothing new, and still must hold.
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(PlainDecimal("1.5"), 1.5);
    EXPECT_EQ(PlainDecimal("1,5"), 1.0);
    EXPECT_EQ(TwoDecimals(1.5), "1.50");
    std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
}  // namespace corvex
