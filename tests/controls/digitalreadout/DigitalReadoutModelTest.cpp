#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>
#include <string>

#include "controls/digitalreadout/DigitalReadoutModel.h"

namespace corvex {
namespace {

constexpr std::uint32_t kNormal = 0xFF6464, kHigh = 0x0000FF, kLow = 0x00FF00;
constexpr float kNan = std::numeric_limits<float>::quiet_NaN(), kInfinity = std::numeric_limits<float>::infinity();

std::uint32_t ColourOf(DigitalReadoutModel& model, float value) {
    model.SetValue(value);
    return model.ColourInForce();
}

using Words = std::vector<std::uint32_t>;

Words WordsOf(const DigitalReadoutInfo& info) {
    return {info.flags,       info.normalColour, info.highColour, info.lowColour,       info.background,
            info.frameColour, info.decimals,     info.userWord,   info.lowLimitEnabled, info.highLimitEnabled};
}

DigitalReadoutInfo SampleInfo() {
    DigitalReadoutInfo info{};
    info.flags = 0x01;
    info.normalColour = 0x010101;
    info.highColour = 0x020202;
    info.lowColour = 0x030303;
    info.background = 0x040404;
    info.frameColour = 0x050505;
    info.lowLimit[0] = 11.0f;
    info.lowLimit[1] = 22.0f;
    info.decimals = 3;
    info.title = "Oil";
    info.units = "bar";
    info.userWord = 77;
    info.lowLimitEnabled = 8;
    info.highLimitEnabled = 4;
    return info;
}

TEST(DigitalReadoutModelTest, BeginsEmptyWithItsDefaultsAndTellsThemInARecord) {
    const DigitalReadoutModel model;
    EXPECT_STREQ(model.Title(), "");
    EXPECT_STREQ(model.Units(), "");
    EXPECT_STREQ(model.Text(), "");
    EXPECT_EQ(model.DigitsHeight(), 34);
    EXPECT_EQ(model.ColourInForce(), kNormal);
    EXPECT_TRUE(model.HasFrame());
    EXPECT_EQ(model.HighLimit(), 256.0f);
    const std::uint32_t colours[] = {0, 0, 0, kNormal, kHigh, kLow, 0xFFFFFF};
    for (std::uint32_t i = 0; i < 7; ++i)
        EXPECT_EQ(model.Colour(i), colours[i]) << i;
    const DigitalReadoutInfo info = model.Info();
    EXPECT_EQ(WordsOf(info), (Words{0x21, kNormal, kHigh, kLow, 0xFFFFFF, 0, 2, 0, 0, 0}));
    EXPECT_EQ(info.lowLimit[0], -1.0f);
    EXPECT_EQ(info.lowLimit[1], -1.0f);
    EXPECT_EQ(info.floating, 1);
    EXPECT_EQ(info.title, model.Title());
    EXPECT_EQ(info.units, model.Units());
}

TEST(DigitalReadoutModelTest, TakesARecordWhoseSecondLowLimitDecides) {
    DigitalReadoutModel model;
    model.SetInfo(SampleInfo());
    const DigitalReadoutInfo info = model.Info();
    EXPECT_EQ(WordsOf(info), WordsOf(SampleInfo()));
    EXPECT_FALSE(model.HasFrame());
    for (const auto& [index, colour] : {std::pair{0u, 0x050505u}, {3u, 0x010101u}, {6u, 0x040404u}})
        EXPECT_EQ(model.Colour(index), colour) << index;
    EXPECT_EQ(info.lowLimit[0], 22.0f);
    EXPECT_EQ(info.lowLimit[1], 22.0f);
    EXPECT_EQ(model.HighLimit(), 256.0f);
    EXPECT_EQ(info.floating, 0);
    EXPECT_STREQ(model.Title(), "Oil");
    EXPECT_STREQ(model.Units(), "bar");
    EXPECT_EQ(model.UserWord(), 77u);
    EXPECT_EQ(model.ColourInForce(), kNormal);  // until the next value
    EXPECT_STREQ(model.Text(), "");
    EXPECT_EQ(ColourOf(model, 22.0f), 0x030303u);
    EXPECT_STREQ(model.Text(), "022");
}

TEST(DigitalReadoutModelTest, RecordKeepsTheTextsThereAreWithoutTextsAndWithItsOwn) {
    DigitalReadoutModel model;
    model.SetTitle("Oil");
    model.SetUnits("bar");
    DigitalReadoutInfo info = model.Info();
    model.SetInfo(info);
    info.title = info.units = nullptr;
    model.SetInfo(info);
    EXPECT_STREQ(model.Title(), "Oil");
    EXPECT_STREQ(model.Units(), "bar");
}

TEST(DigitalReadoutModelTest, TextsAreCutToTheirBuffers) {
    DigitalReadoutModel model;
    const std::string text(500, 'x');
    EXPECT_EQ(model.SetTitle(text.c_str()), 79u);
    EXPECT_EQ(model.SetUnits(text.c_str()), 49u);
    EXPECT_EQ(std::string(model.Title()), text.substr(0, 79));
    EXPECT_EQ(std::string(model.Units()), text.substr(0, 49));
    EXPECT_STREQ(model.Text(), "");
    EXPECT_EQ(model.SetTitle(text.substr(0, 79).c_str()), 79u);
    EXPECT_EQ(model.SetTitle("ab"), 2u);
    EXPECT_STREQ(model.Title(), "ab");
    EXPECT_EQ(model.SetTitle(nullptr), 0u);
    EXPECT_STREQ(model.Title(), "");

    DigitalReadoutInfo info = SampleInfo();
    info.title = info.units = text.c_str();
    model.SetInfo(info);
    EXPECT_EQ(std::string(model.Title()), text.substr(0, 79));
    EXPECT_EQ(std::string(model.Units()), text.substr(0, 49));
    EXPECT_EQ(model.UserWord(), 77u);
}

TEST(DigitalReadoutModelTest, ColoursBeyondTheSeventhAreIgnoredAndReadZero) {
    DigitalReadoutModel model;
    for (std::uint32_t i = 0; i < 7; ++i)
        model.SetColour(i, 0x100 + i);
    model.SetColour(7, 0x777777);
    model.SetColour(0xFFFFFFFF, 0x777777);
    for (std::uint32_t i = 0; i < 7; ++i)
        EXPECT_EQ(model.Colour(i), 0x100 + i) << i;
    EXPECT_EQ(model.Colour(7), 0u);
    EXPECT_EQ(model.Colour(0xFFFFFFFF), 0u);
    EXPECT_EQ(model.ColourInForce(), kNormal);
}

TEST(DigitalReadoutModelTest, EnabledLimitsColourValuesThatReachThemTheHighOneFirst) {
    const struct {
        float low, high;
        std::uint32_t lowOn, highOn;
        std::vector<std::pair<float, std::uint32_t>> colours;
    } cases[] = {{10, 20, 8, 4, {{9, kLow}, {10, kLow}, {std::nextafter(10.0f, 11.0f), kNormal}}},
                 {10, 20, 8, 4, {{std::nextafter(20.0f, 19.0f), kNormal}, {20, kHigh}, {21, kHigh}, {kNan, kHigh}}},
                 {20, 10, 1, 1, {{15, kHigh}, {5, kLow}, {25, kHigh}}},
                 {-1, 256, 0, 0, {{-5, kNormal}, {1000, kNormal}, {kNan, kNormal}}},
                 {-1, 256, 1, 0, {{-1, kLow}, {1000, kNormal}, {kNan, kLow}}},
                 {-1, 256, 0, 1, {{-5, kNormal}, {256, kHigh}, {255, kNormal}}}};
    for (const auto& limits : cases) {
        DigitalReadoutModel model;
        model.SetLowLimit(limits.low);
        model.SetHighLimit(limits.high);
        model.EnableLowLimit(limits.lowOn);
        model.EnableHighLimit(limits.highOn);
        for (const auto& [value, colour] : limits.colours)
            EXPECT_EQ(ColourOf(model, value), colour) << value << " with limits " << limits.low << " " << limits.high;
    }
}

TEST(DigitalReadoutModelTest, ChangedLimitRecoloursTheValue) {
    DigitalReadoutModel model;
    model.EnableHighLimit(1);
    model.EnableLowLimit(1);
    model.SetValue(100.0f);
    EXPECT_EQ(model.SetHighLimit(50.0f), 256.0f);
    EXPECT_EQ(model.ColourInForce(), kHigh);
    EXPECT_EQ(model.SetHighLimit(500.0f), 50.0f);
    EXPECT_EQ(model.ColourInForce(), kNormal);
    EXPECT_EQ(model.SetLowLimit(100.0f), -1.0f);
    EXPECT_EQ(model.ColourInForce(), kLow);
    EXPECT_EQ(model.SetLowLimit(0.0f), 100.0f);
    EXPECT_EQ(model.ColourInForce(), kNormal);
    EXPECT_EQ(model.SetValue(0.0f), 100.0f);
}

// As FormatDecimals and FormatWhole have it, in 24 characters.
TEST(DigitalReadoutModelTest, PrintsFloatsAndTruncatedWholeNumbers) {
    const struct {
        float value;
        std::int32_t floating;
        std::uint32_t decimals;
        std::string text;
    } cases[] = {{12.346f, 1, 2, "12.35"},  {1.5f, 2, 1, "1.5"},
                 {kNan, 1, 2, "nan"},       {FLT_MAX, 1, 2, "340282346638528859811704"},
                 {1234.9f, 0, 1, "1234"},   {-7.0f, 0, 3, "-007"},
                 {0.0f, 0, 0, ""},          {-3e9f, 0, 1, "-2147483648"},
                 {7.0f, 0, 0x80000000, "7"}};
    for (const auto& c : cases) {
        DigitalReadoutModel model;
        model.SetFormat(c.floating, c.decimals);
        model.SetValue(c.value);
        EXPECT_EQ(model.Text(), c.text) << c.value << " " << c.floating << " " << c.decimals;
    }
    DigitalReadoutModel model;
    DigitalReadoutInfo info = model.Info();
    info.decimals = 0xFFFFFFFF;
    model.SetInfo(info);
    model.SetValue(0.5f);
    EXPECT_STREQ(model.Text(), "0.500000");
}

TEST(DigitalReadoutModelTest, FormatKeepsWhatIsNotTold) {
    DigitalReadoutModel model;
    model.SetValue(7.25f);
    model.SetFormat(-1, 1);
    EXPECT_STREQ(model.Text(), "7.2");
    model.SetFormat(0, 0xFFFFFFFF);
    EXPECT_STREQ(model.Text(), "7");
    model.SetFormat(-1, 3);
    EXPECT_STREQ(model.Text(), "007");
    model.SetFormat(-1, 0xFFFFFFFF);
    EXPECT_STREQ(model.Text(), "007");
    EXPECT_EQ(model.Info().floating, 0);
    EXPECT_EQ(model.Info().decimals, 3u);
}

TEST(DigitalReadoutModelTest, FormatEnablingAndColoursLeaveSizeAndColourUntilTheNextValue) {
    DigitalReadoutModel model;
    model.SetFormat(-1, 0xFFFFFFFF);
    EXPECT_STREQ(model.Text(), "0.00");
    EXPECT_EQ(model.DigitsHeight(), 34);
    model.SetValue(300.0f);  // 300.00
    model.EnableHighLimit(1);
    model.SetColour(3, 0x111111);
    model.SetColour(4, 0x222222);
    model.SetFormat(0, 1);
    EXPECT_STREQ(model.Text(), "300");
    EXPECT_EQ(model.DigitsHeight(), 34);
    EXPECT_EQ(model.ColourInForce(), kNormal);
    model.SetValue(300.0f);
    EXPECT_EQ(model.DigitsHeight(), 50);
    EXPECT_EQ(model.ColourInForce(), 0x222222u);
}

TEST(DigitalReadoutModelTest, DigitsShrinkWithTheLengthOfTheirText) {
    const int heights[] = {50, 50, 50, 50, 44, 40, 34, 30, 28, 26, 24, 24, 24};
    for (std::size_t length = 0; length < std::size(heights); ++length)
        EXPECT_EQ(DigitsHeightFor(length), heights[length]) << length;
    EXPECT_EQ(DigitsHeightFor(24), 24);

    DigitalReadoutModel model;
    model.SetFormat(0, 2);
    for (std::uint32_t length = 2; length < std::size(heights); ++length) {
        model.SetFormat(-1, length);
        model.SetValue(1.0f);
        EXPECT_EQ(std::string(model.Text()).size(), length);
        EXPECT_EQ(model.DigitsHeight(), heights[length]) << length;
    }
}

TEST(DigitalReadoutModelTest, FirstTextOfOneCharacterKeepsTheHeightOfTheBeginning) {
    DigitalReadoutModel model;
    model.SetFormat(0, 1);
    for (const auto& [value, height] : {std::pair{5.0f, 34}, {12345.0f, 40}, {5.0f, 50}}) {
        model.SetValue(value);
        EXPECT_EQ(model.DigitsHeight(), height);
    }
}

TEST(DigitalReadoutModelTest, FixedSizeStaysUntilItIsAutomaticAgain) {
    DigitalReadoutModel model;
    for (const bool isAutomatic : {false, true}) {
        model.SetAutomaticSize(isAutomatic);
        EXPECT_EQ(model.DigitsHeight(), 34) << "until the next value";
        model.SetValue(1.0f);
        EXPECT_EQ(model.DigitsHeight(), isAutomatic ? 44 : 34);
    }
}

TEST(DigitalReadoutModelTest, UserWordAnswersTheOldOne) {
    DigitalReadoutModel model;
    EXPECT_EQ(model.SetUserWord(0xDEADBEEF), 0u);
    EXPECT_EQ(model.SetUserWord(1), 0xDEADBEEFu);
    EXPECT_EQ(model.UserWord(), 1u);
}

}  // namespace
}  // namespace corvex
