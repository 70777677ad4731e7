#include <functional>

#include "controls/digitalreadout/DigitalReadout.h"
#include "tests/controls/digitalreadout/DigitalReadoutFixture.h"

namespace corvex {
namespace {

constexpr std::uint32_t kHigh = 0x0000FF, kLow = 0x00FF00;

using DigitalReadoutTest = DigitalReadoutFixture;

// Every function, called so that one with a result of its own would not give 0.
void ExpectNothing(HWND window) {
    DigitalReadoutInfo info{};
    info.userWord = 5;
    EXPECT_EQ(DigitalReadoutSetInfo(window, &info), 0u);
    EXPECT_EQ(DigitalReadoutGetInfo(window, &info), 0u);
    EXPECT_EQ(info.userWord, 5u);
    EXPECT_FALSE(DigitalReadoutSetColor(window, 3, 1));
    EXPECT_EQ(DigitalReadoutGetColor(window, 3), -1);
    EXPECT_EQ(DigitalReadoutSetValue(window, 2.0f), 0.0f);
    EXPECT_EQ(DigitalReadoutSetValue(window, 3.0f), 0.0f);
    EXPECT_EQ(DigitalReadoutSetValueInt(window, 4), 0);
    EXPECT_EQ(DigitalReadoutSetHighLimit(window, 1.0f), 0.0f);
    EXPECT_EQ(DigitalReadoutSetHighLimitInt(window, 1), 0.0f);
    EXPECT_EQ(DigitalReadoutGetHighLimit(window), 0.0f);
    EXPECT_EQ(DigitalReadoutSetLowLimit(window, 1.0f), 0.0f);
    EXPECT_EQ(DigitalReadoutSetLowLimitInt(window, 1), 0.0f);
    EXPECT_EQ(DigitalReadoutGetLowLimit(window), 0.0f);
    EXPECT_FALSE(DigitalReadoutEnableHighLimit(window, 1));
    EXPECT_FALSE(DigitalReadoutEnableLowLimit(window, 1));
    EXPECT_FALSE(DigitalReadoutSetFormat(window, 0, 1));
    EXPECT_EQ(DigitalReadoutSetTitle(window, "x"), 0u);
    EXPECT_EQ(DigitalReadoutSetUnits(window, "x"), 0u);
    EXPECT_EQ(DigitalReadoutSetUserWord(window, 6), 0u);
    EXPECT_EQ(DigitalReadoutGetUserWord(window), 0u);
}

TEST_F(DigitalReadoutTest, HandleWithoutAReadoutGivesNothing) {
    ExpectNothing(nullptr);
    gauge.Parent().heard.clear();
    ExpectNothing(gauge.Parent().Window());
    EXPECT_TRUE(gauge.Parent().heard.empty()) << "not even asked";
    ExpectNothing(reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x7FFE)));
    ::DestroyWindow(window);
    ExpectNothing(window);
}

TEST_F(DigitalReadoutTest, OnlyWhatIsToldToRepaintDoesSoAndOnce) {
    DigitalReadoutInfo info = Model().Info();
    const struct {
        const char* name;
        int paints;
        std::function<void()> call;
    } kCalls[] = {
        {"SetInfo", 0, [&] { DigitalReadoutSetInfo(window, &info); }},
        {"GetInfo", 0, [&] { DigitalReadoutGetInfo(window, &info); }},
        {"SetColor", 1, [&] { DigitalReadoutSetColor(window, 3, 1); }},
        {"GetColor", 0, [&] { DigitalReadoutGetColor(window, 3); }},
        {"SetValue", 1, [&] { DigitalReadoutSetValue(window, 2.5f); }},
        {"SetValue unchanged", 0, [&] { DigitalReadoutSetValue(window, 2.5f); }},
        {"SetValueInt of another whole number", 1, [&] { DigitalReadoutSetValueInt(window, 3); }},
        {"SetValueInt unchanged", 0, [&] { DigitalReadoutSetValueInt(window, 3); }},
        {"SetHighLimit", 1, [&] { DigitalReadoutSetHighLimit(window, 256.0f); }},
        {"SetHighLimitInt", 1, [&] { DigitalReadoutSetHighLimitInt(window, 256); }},
        {"GetHighLimit", 0, [&] { DigitalReadoutGetHighLimit(window); }},
        {"SetLowLimit", 1, [&] { DigitalReadoutSetLowLimit(window, -1.0f); }},
        {"SetLowLimitInt", 1, [&] { DigitalReadoutSetLowLimitInt(window, -1); }},
        {"GetLowLimit", 0, [&] { DigitalReadoutGetLowLimit(window); }},
        {"EnableHighLimit", 0, [&] { DigitalReadoutEnableHighLimit(window, 1); }},
        {"EnableLowLimit", 0, [&] { DigitalReadoutEnableLowLimit(window, 1); }},
        {"SetFormat", 1, [&] { DigitalReadoutSetFormat(window, -1, 0xFFFFFFFF); }},
        {"SetTitle", 1, [&] { DigitalReadoutSetTitle(window, ""); }},
        {"SetUnits", 1, [&] { DigitalReadoutSetUnits(window, ""); }},
        {"SetUserWord", 0, [&] { DigitalReadoutSetUserWord(window, 6); }},
        {"GetUserWord", 0, [&] { DigitalReadoutGetUserWord(window); }},
    };
    for (const auto& call : kCalls) {
        EXPECT_EQ(gauge.PaintsIn(call.call), call.paints) << call.name;
        EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE)) << call.name;
    }
}

TEST_F(DigitalReadoutTest, UnchangedValuePaintsNothingEvenWithALimitEnabledMeanwhile) {
    DigitalReadoutSetValue(window, 300.0f);
    DigitalReadoutEnableHighLimit(window, 1);
    EXPECT_EQ(gauge.PaintsIn([&] { DigitalReadoutSetValue(window, 300.0f); }), 0);
    EXPECT_EQ(Model().ColourInForce(), kHigh);
    EXPECT_FALSE(gauge.Shows(kHigh));
}

TEST_F(DigitalReadoutTest, FirstValueOfZeroIsNoChange) {
    EXPECT_EQ(gauge.PaintsIn([&] { DigitalReadoutSetValue(window, 0.0f); }), 0);
    EXPECT_STREQ(Model().Text(), "0.00");
}

TEST_F(DigitalReadoutTest, SetValueIntComparesWholeNumbers) {
    DigitalReadoutSetValue(window, 7.75f);
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(DigitalReadoutSetValueInt(window, 7), 7); }), 0);
    EXPECT_STREQ(Model().Text(), "7.00");
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(DigitalReadoutSetValueInt(window, -7), 7); }), 1);
    DigitalReadoutSetValue(window, -7.75f);
    EXPECT_EQ(DigitalReadoutSetValueInt(window, 1), -7);
    DigitalReadoutSetValue(window, 1e30f);
    EXPECT_EQ(DigitalReadoutSetValueInt(window, 1), INT32_MIN);
}

TEST_F(DigitalReadoutTest, LimitsRecolourTheValueAtOnceAndAnEnabledOneWithTheNextValue) {
    DigitalReadoutSetValue(window, 100.0f);
    DigitalReadoutEnableHighLimit(window, 4);
    DigitalReadoutEnableLowLimit(window, 8);
    DigitalReadoutSetHighLimit(window, 100.0f);
    EXPECT_EQ(DigitalReadoutGetHighLimit(window), 100.0f);
    EXPECT_TRUE(gauge.Shows(kHigh));
    EXPECT_EQ(DigitalReadoutSetHighLimitInt(window, 200), 100.0f);
    EXPECT_EQ(DigitalReadoutSetLowLimitInt(window, 100), -1.0f);
    EXPECT_EQ(DigitalReadoutGetLowLimit(window), 100.0f);
    EXPECT_TRUE(gauge.Shows(kLow));
    DigitalReadoutEnableLowLimit(window, 0);
    DigitalReadoutSetValue(window, 99.0f);
    EXPECT_FALSE(gauge.Shows(kLow));
}

TEST_F(DigitalReadoutTest, TextsOfNoLengthAndNoInfoAreSurvived) {
    EXPECT_EQ(DigitalReadoutSetTitle(window, std::string(1000, 'x').c_str()), 79u);
    EXPECT_EQ(DigitalReadoutSetUnits(window, nullptr), 0u);
    EXPECT_EQ(DigitalReadoutSetInfo(window, nullptr), 0u);
    EXPECT_EQ(DigitalReadoutGetInfo(window, nullptr), 0u);
}

TEST_F(DigitalReadoutTest, ColoursAreSetAndReadByIndex) {
    for (std::uint32_t i = 0; i < 7; ++i) {
        EXPECT_EQ(DigitalReadoutGetColor(window, i), static_cast<std::int32_t>(Model().Colour(i))) << i;
        EXPECT_TRUE(DigitalReadoutSetColor(window, i, 0x0A0B00 + i));
        EXPECT_EQ(DigitalReadoutGetColor(window, i), static_cast<std::int32_t>(0x0A0B00 + i));
    }
    DigitalReadoutSetColor(window, 7, 1);
    EXPECT_EQ(DigitalReadoutGetColor(window, 7), 0);
    EXPECT_EQ(DigitalReadoutGetColor(window, 0xFFFFFFFF), 0);
}

TEST_F(DigitalReadoutTest, ColourOfTheDigitsShowsWithTheNextValue) {
    DigitalReadoutSetValue(window, 1.0f);
    DigitalReadoutSetColor(window, 3, 0x0000AA);
    EXPECT_FALSE(gauge.Shows(0x0000AAu));
    DigitalReadoutSetColor(window, 6, 0x00AAAA);
    EXPECT_TRUE(gauge.Shows(0x00AAAAu));
    DigitalReadoutSetValue(window, 2.0f);
    EXPECT_TRUE(gauge.Shows(0x0000AAu));
}

}  // namespace
}  // namespace corvex
