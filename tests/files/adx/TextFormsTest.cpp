#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "files/adx/TextForms.h"

namespace corvex {
namespace {

TEST(TextForms, HexTextFoldsDigitsAndSkipsAllElse) {
    EXPECT_EQ(HexText("0x1F"), 0x1Fu);
    EXPECT_EQ(HexText("1F"), 0x1Fu);
    EXPECT_EQ(HexText("1 F"), 0x1Fu);
    EXPECT_EQ(HexText("1f"), 0x1Fu);
    EXPECT_EQ(HexText("10"), 16u);
    EXPECT_EQ(HexText(""), 0u);
    EXPECT_EQ(HexText("xyz-"), 0u);
    EXPECT_EQ(HexText("0xFFFFFFFF"), 0xFFFFFFFFu);
}

TEST(TextForms, HexTextKeepsTheLastEightDigits) {
    EXPECT_EQ(HexText("123456789"), 0x23456789u);
}

TEST(TextForms, DecimalWordsAreUnsigned) {
    EXPECT_EQ(DecimalWord("4294967295"), 4294967295u);
    EXPECT_EQ(DecimalWord("2147483648"), 2147483648u);
    EXPECT_EQ(DecimalWord("-1"), 4294967295u);
    EXPECT_EQ(DecimalWord("0"), 0u);
}

TEST(TextForms, DecimalWordReadsTheLeadingNumber) {
    EXPECT_EQ(DecimalWord(" \t\r\n12abc"), 12u);
    EXPECT_EQ(DecimalWord("+7"), 7u);
    EXPECT_EQ(DecimalWord("0x10"), 0u);
    EXPECT_EQ(DecimalWord("1.9"), 1u);
    EXPECT_EQ(DecimalWord("abc"), 0u);
    EXPECT_EQ(DecimalWord(""), 0u);
    EXPECT_EQ(DecimalWord("--1"), 0u);
}

TEST(TextForms, DecimalWordCutsWhatIsBeyondAWord) {
    EXPECT_EQ(DecimalWord("4294967296"), 4294967295u);
    EXPECT_EQ(DecimalWord(std::string(500, '9')), 4294967295u);
}

TEST(TextForms, DecimalFloatReadsTheLeadingNumber) {
    EXPECT_EQ(DecimalFloat("12.5"), 12.5F);
    EXPECT_EQ(DecimalFloat(" -12.5 rpm"), -12.5F);
    EXPECT_EQ(DecimalFloat("+3"), 3.0F);
    EXPECT_EQ(DecimalFloat(".5"), 0.5F);
    EXPECT_EQ(DecimalFloat("5."), 5.0F);
    EXPECT_EQ(DecimalFloat("1e3"), 1000.0F);
    EXPECT_EQ(DecimalFloat("1e"), 1.0F);
    EXPECT_EQ(DecimalFloat("1,5"), 1.0F);
    EXPECT_EQ(DecimalFloat("text"), 0.0F);
    EXPECT_EQ(DecimalFloat(""), 0.0F);
    EXPECT_EQ(DecimalFloat("+-1"), 0.0F);
    EXPECT_EQ(DecimalFloat("--1"), 0.0F);
    EXPECT_EQ(DecimalFloat("0x10"), 0.0F);
}

TEST(TextForms, DecimalFloatNarrowsBeyondItsRangeToInfinity) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(DecimalFloat("1e39"), kInfinity);
    EXPECT_EQ(DecimalFloat("-1e39"), -kInfinity);
    EXPECT_EQ(DecimalFloat("1e400"), kInfinity);
    EXPECT_EQ(DecimalFloat("-1e400"), -kInfinity);
    EXPECT_EQ(DecimalFloat("1e99999999999999999999"), kInfinity);
    EXPECT_EQ(DecimalFloat(std::string(400, '9')), kInfinity);
    EXPECT_EQ(DecimalFloat("0." + std::string(350, '0') + "1e900"), kInfinity);
    EXPECT_EQ(DecimalFloat("inf"), kInfinity);
    EXPECT_EQ(DecimalFloat("-inf"), -kInfinity);
    EXPECT_TRUE(std::isnan(DecimalFloat("nan")));
}

TEST(TextForms, DecimalFloatBelowItsRangeIsZero) {
    EXPECT_EQ(DecimalFloat("1e-400"), 0.0F);
    EXPECT_EQ(DecimalFloat("1e-99999999999999999999"), 0.0F);
    EXPECT_EQ(DecimalFloat("0." + std::string(400, '0') + "1"), 0.0F);
    EXPECT_EQ(DecimalFloat("1" + std::string(300, '0') + "e-900"), 0.0F);
}

TEST(TextForms, TheLargestFloatKeepsItself) {
    char text[64];
    std::snprintf(text, sizeof text, "%f", static_cast<double>(std::numeric_limits<float>::max()));
    EXPECT_EQ(DecimalFloat(text), std::numeric_limits<float>::max());
}

TEST(TextForms, DecimalFloatAgreesWithTheLibraryInTheCLocale) {
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        const double number = (static_cast<double>(random()) - 2147483648.0) / (1 << random() % 24);
        char text[64];
        std::snprintf(text, sizeof text, i % 2 != 0 ? "%f" : "%.15g", number);
        EXPECT_EQ(DecimalFloat(text), static_cast<float>(std::atof(text))) << text;
    }
}

TEST(TextForms, DecimalFloatDoesNotLookAtTheLocale) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* name : {"de_DE.UTF-8", "de_DE", "German_Germany.1252", "fr_FR.UTF-8"}) {
        if (std::setlocale(LC_NUMERIC, name) != nullptr) break;
    }
    EXPECT_EQ(DecimalFloat("12.5"), 12.5F);
    std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(TextForms, NamesMatchInAnyCase) {
    EXPECT_TRUE(SameName("ADXVALUE", "adxValue"));
    EXPECT_TRUE(SameName("", ""));
    EXPECT_FALSE(SameName("ADXVALUE", "ADXVALUES"));
    EXPECT_FALSE(SameName("[", "{"));
    EXPECT_FALSE(SameName("@", "`"));
}

TEST(TextForms, CharactersOfANarrowFileKeepTheirByte) {
    for (int byte = 0; byte < 256; ++byte) {
        const auto widened = static_cast<char16_t>(static_cast<signed char>(byte));
        EXPECT_EQ(NarrowCharacter(widened), static_cast<char>(byte)) << byte;
    }
    EXPECT_EQ(NarrowCharacter(0xFFE9), '\xE9');
}

TEST(TextForms, CharactersWithoutAByteBecomeQuestionMarks) {
    EXPECT_EQ(NarrowCharacter(0xE9), '\xE9');
    EXPECT_EQ(NarrowCharacter(0x100), '?');
    EXPECT_EQ(NarrowCharacter(0x20AC), '?');
    EXPECT_EQ(NarrowCharacter(0xFF7F), '?');
}

}  // namespace
}  // namespace corvex
