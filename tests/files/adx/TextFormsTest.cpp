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

TEST(TextForms, HexTextFoldsTheLastEightDigitsAndSkipsAllElse) {
    const std::pair<const char*, std::uint32_t> cases[] = {
        {"0x1F", 0x1F},
        {"1F", 0x1F},
        {"1 F", 0x1F},
        {"1f", 0x1F},
        {"10", 16},
        {"", 0},
        {"xyz-", 0},
        {"0xFFFFFFFF", 0xFFFFFFFF},
        {"123456789", 0x23456789},
    };
    for (const auto& [text, word] : cases)
        EXPECT_EQ(HexText(text), word) << text;
}

TEST(TextForms, DecimalWordReadsTheLeadingNumberUnsigned) {
    const std::pair<std::string, std::uint32_t> cases[] = {
        {"4294967295", 4294967295},
        {"2147483648", 2147483648},
        {"-1", 4294967295},
        {"0", 0},
        {" \t\r\n12abc", 12},
        {"+7", 7},
        {"0x10", 0},
        {"1.9", 1},
        {"abc", 0},
        {"", 0},
        {"--1", 0},
        // What is beyond a word is cut.
        {"4294967296", 4294967295},
        {std::string(500, '9'), 4294967295},
    };
    for (const auto& [text, word] : cases)
        EXPECT_EQ(DecimalWord(text), word) << text;
}

TEST(TextForms, DecimalFloatReadsTheLeadingNumber) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const std::pair<std::string, float> cases[] = {
        {"12.5", 12.5F},
        {" -12.5 rpm", -12.5F},
        {"+3", 3.0F},
        {".5", 0.5F},
        {"5.", 5.0F},
        {"1e3", 1000.0F},
        {"1e", 1.0F},
        {"1,5", 1.0F},
        {"text", 0.0F},
        {"", 0.0F},
        {"+-1", 0.0F},
        {"--1", 0.0F},
        {"0x10", 0.0F},
        // Beyond its range it is infinity.
        {"1e39", kInfinity},
        {"-1e39", -kInfinity},
        {"1e400", kInfinity},
        {"-1e400", -kInfinity},
        {"1e99999999999999999999", kInfinity},
        {std::string(400, '9'), kInfinity},
        {"0." + std::string(350, '0') + "1e900", kInfinity},
        {"inf", kInfinity},
        {"-inf", -kInfinity},
        // Below its range it is zero.
        {"1e-400", 0.0F},
        {"1e-99999999999999999999", 0.0F},
        {"0." + std::string(400, '0') + "1", 0.0F},
        {"1" + std::string(300, '0') + "e-900", 0.0F},
    };
    for (const auto& [text, number] : cases)
        EXPECT_EQ(DecimalFloat(text), number) << text;
    EXPECT_TRUE(std::isnan(DecimalFloat("nan")));
}

TEST(TextForms, DecimalFloatAgreesWithTheLibraryInTheCLocale) {
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        double number = (static_cast<double>(random()) - 2147483648.0) / (1 << random() % 24);
        if (i == 1) number = static_cast<double>(std::numeric_limits<float>::max());
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

TEST(TextForms, CharactersOfANarrowFileKeepTheirByteAndOthersBecomeQuestionMarks) {
    for (int byte = 0; byte < 256; ++byte) {
        const auto widened = static_cast<char16_t>(static_cast<signed char>(byte));
        EXPECT_EQ(NarrowCharacter(widened), static_cast<char>(byte)) << byte;
    }
    for (const char16_t c : {u'\xFFE9', u'\xE9'})
        EXPECT_EQ(NarrowCharacter(c), '\xE9');
    for (const char16_t c : {u'\x100', u'\x20AC', u'\xFF7F'})
        EXPECT_EQ(NarrowCharacter(c), '?');
}

}  // namespace
}  // namespace corvex
