#include "tests/controls/analoggauge/AnalogGaugeFixture.h"

namespace corvex {
namespace {

class AnalogGaugeTest : public AnalogGaugeFixture {};

TEST_F(AnalogGaugeTest, BeginsAsTheDefaultDial) {
    EXPECT_TRUE(ShowsModel());
    const LRESULT colours[] = {0xF0F0F0, 0, 0x0050FA, 0, 0, 0xFFFFFF, 0, 0, 0xFF0000, 0xFF0000};
    for (WPARAM i = 0; i < 10; ++i)
        EXPECT_EQ(Send(1528, i), colours[i]) << i;
    EXPECT_EQ(Send(1533), 0);
    EXPECT_EQ(Send(1545, 0), 0);
    char text[4] = "xxx";
    EXPECT_EQ(Send(1540, W(text), sizeof text), 0);
    EXPECT_STREQ(text, "");
}

TEST_F(AnalogGaugeTest, FlagsAreAddedClearedAndAllTakenByNone) {
    EXPECT_EQ(Send(1524, 0x80), 0);
    model_.flags = 0xDF;
    EXPECT_TRUE(ShowsModelWhenPainted());
    EXPECT_EQ(Send(1526, 0x14), 0);
    model_.flags = 0xCB;
    EXPECT_TRUE(ShowsModelWhenPainted());
    EXPECT_EQ(Send(1524, 0), 0);
    model_.flags = 0;
    EXPECT_TRUE(ShowsModelWhenPainted());
    EXPECT_EQ(Send(1524, 0x04), 0);
    model_.flags = 0x04;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, FlagsRepaintOnlyWhenAsked) {
    EXPECT_EQ(gauge_->PaintsIn([&] { Send(1524, 0x80, 0); }), 0);
    EXPECT_EQ(gauge_->PaintsIn([&] { Send(1524, 0x80, 1); }), 1);
    EXPECT_EQ(gauge_->PaintsIn([&] { Send(1526, 0x80, 0); }), 0);
    EXPECT_EQ(gauge_->PaintsIn([&] { Send(1526, 0x80, 1); }), 1);
}

TEST_F(AnalogGaugeTest, ColoursAreSetByIndexWithoutARepaint) {
    EXPECT_EQ(gauge_->PaintsIn([&] {
        for (std::uint32_t i = 0; i < 10; ++i) {
            model_.SetColour(i, 0x203040 + 0x101010 * i);
            EXPECT_EQ(Send(1527, i, 0x203040 + 0x101010 * static_cast<LPARAM>(i)), 0);
        }
        ::UpdateWindow(gauge_->Window());
    }),
              0);
    for (std::uint32_t i = 0; i < 10; ++i)
        EXPECT_EQ(Send(1528, i), static_cast<LRESULT>(0x203040 + 0x101010 * i)) << i;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, ColourIndexTenIsNone) {
    EXPECT_EQ(Send(1527, 10, 0xABCDEF), 0);
    EXPECT_EQ(Send(1528, 10), 0);
    EXPECT_EQ(Send(1527, ~WPARAM{0}, 0xABCDEF), 0);
    EXPECT_EQ(Send(1528, ~WPARAM{0}), 0);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, RangeLeavesTheValueUntilTheNextOne) {
    SetValue(120.0f);
    const float minimum = -20.0f, maximum = 60.0f;
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1529, W(&minimum), L(&maximum)), 0); }), 0);
    EXPECT_EQ(Send(1533), 120);
    model_.SetValue(120.0f);
    model_.scale.rangeMinimum = -20.0f;
    model_.scale.rangeMaximum = 60.0f;
    EXPECT_TRUE(ShowsModelWhenPainted());
    SetValue(120.0f);
    EXPECT_EQ(Send(1533), 60);
}

TEST_F(AnalogGaugeTest, SweepTurnsTheScale) {
    const float start = 0.0f, end = 180.0f;
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1534, W(&start), L(&end)), 0); }), 0);
    model_.scale.sweepStart = 0.0f;
    model_.scale.sweepEnd = 180.0f;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, ValueIsClampedAndReadTruncated) {
    EXPECT_EQ(SetValue(12.9f), 0);
    EXPECT_EQ(Send(1533), 12);
    SetValue(-5.0f);
    EXPECT_EQ(Send(1533), 0);
    SetValue(1000.0f);
    EXPECT_EQ(Send(1533), 150);
    const float minimum = -100.0f, maximum = 3e9f;
    Send(1529, W(&minimum), L(&maximum));
    SetValue(-12.9f);
    EXPECT_EQ(Send(1533), -12);
    SetValue(3e9f);
    EXPECT_EQ(Send(1533), LRESULT{-2147483647} - 1);
}

TEST_F(AnalogGaugeTest, ValueRepaintsAtOnceOnlyWhenAsked) {
    EXPECT_EQ(gauge_->PaintsIn([&] { SetValue(40.5f, 0); }), 0);
    EXPECT_TRUE(ShowsModel());
    EXPECT_EQ(gauge_->PaintsIn([&] { SetValue(50.5f, 1); }), 1);
    model_.SetValue(40.5f);
    model_.SetValue(50.5f);
    EXPECT_TRUE(ShowsModel());
}

TEST_F(AnalogGaugeTest, ExtremesAreForgottenApart) {
    for (const float value : {30.0f, 90.0f, 60.0f}) {
        SetValue(value);
        model_.SetValue(value);
    }
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1537), 0); }), 0);
    model_.ResetLowest();
    EXPECT_TRUE(ShowsModelWhenPainted());
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1538), 0); }), 0);
    model_.ResetHighest();
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, DoubleClickForgetsBothAndTheNextSampleRefillsThemBeforeItsPaint) {
    for (const float value : {30.0f, 90.0f, 60.0f}) {
        SetValue(value, 1);
        model_.SetValue(value);
    }
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(WM_LBUTTONDBLCLK), 0); }), 0);
    EXPECT_FALSE(::GetUpdateRect(gauge_->Window(), nullptr, FALSE));
    EXPECT_TRUE(ShowsModel());
    SetValue(60.0f, 1);
    model_.ResetLowest();
    model_.ResetHighest();
    model_.SetValue(60.0f);
    EXPECT_TRUE(ShowsModel());
    Send(WM_LBUTTONDBLCLK);
    model_.ResetLowest();
    model_.ResetHighest();
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, TitleAndUnitsAreKeptApartAndDrawn) {
    char text[16];
    EXPECT_EQ(gauge_->PaintsIn([&] {
        EXPECT_EQ(Send(1539, W("Coolant"), 7), 0);
        EXPECT_EQ(Send(1541, W("deg C"), 5), 0);
    }),
              0);
    EXPECT_EQ(Send(1540, W(text), sizeof text), 0);
    EXPECT_STREQ(text, "Coolant");
    EXPECT_EQ(Send(1542, W(text), sizeof text), 0);
    EXPECT_STREQ(text, "deg C");
    Send(1540, W(text), 5);
    EXPECT_STREQ(text, "Cool");
    model_.title.Set("Coolant", 7);
    model_.units.Set("deg C", 5);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, TextsGoOrBecomeEmptyAsTheirLengthSays) {
    char text[16];
    for (const UINT set : {1539u, 1541u}) {
        Send(set, W("Coolant"), 7);
        Send(set, W("Coolant"), 6);
        Send(set + 1, W(text), sizeof text);
        EXPECT_STREQ(text, "") << set;
        Send(set, W("Coolant"), 7);
        Send(set, W("Coolant"), 0);
        Send(set + 1, W(text), sizeof text);
        EXPECT_STREQ(text, "") << set;
    }
}

TEST_F(AnalogGaugeTest, LongTitleIsKeptButNotDrawn) {
    const std::string title(100, 'M');
    Send(1539, W(title.c_str()), static_cast<LPARAM>(title.size()));
    char text[200];
    Send(1540, W(text), sizeof text);
    EXPECT_EQ(text, title);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, DigitsTravelInTheSecondParameter) {
    SetValue(12.5f);
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1543, 5, 1), 0); }), 0);
    model_.SetValue(12.5f);
    model_.digits = 1;
    EXPECT_TRUE(ShowsModelWhenPainted());
    Send(1543, 0, 0x7FFFFFFF);
    model_.digits = 0x7FFFFFFF;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, BandsAreAddedReplacedPutInFrontAndRead) {
    const GaugeAlarmBand one{10.0f, 40.0f, 0x0000FF}, two{30.0f, 60.0f, 0x00FF00}, three{20.0f, 50.0f, 0xFF0000};
    EXPECT_EQ(gauge_->PaintsIn([&] {
        EXPECT_EQ(Send(1544, 10, L(&one)), 0);
        EXPECT_EQ(Send(1544, 10, L(&two)), 1);
        EXPECT_EQ(Send(1544, 0xFFFFFFFF, L(&three)), 0);
        EXPECT_EQ(Send(1544, 1, L(&two)), 1);
        EXPECT_EQ(Send(1544, ~WPARAM{0}, L(&one)), 0);
    }),
              0);
    model_.SetAlarm(10, &one);
    model_.SetAlarm(10, &three);
    model_.SetAlarm(10, &two);
    model_.SetAlarm(10, &two);
    EXPECT_TRUE(ShowsModelWhenPainted());
    GaugeAlarmBand band{};
    EXPECT_EQ(Send(1545, 1, L(&band)), 1);
    EXPECT_EQ(band.low, 20.0f);
    EXPECT_EQ(band.high, 50.0f);
    EXPECT_EQ(band.colour, 0xFF0000u);
    EXPECT_EQ(Send(1545, 3, 0), 1);
    EXPECT_EQ(Send(1545, 4, L(&band)), 0);
}

TEST_F(AnalogGaugeTest, BandsAreClearedAndNoBandIsRefused) {
    const GaugeAlarmBand band{10.0f, 40.0f, 0x0000FF};
    EXPECT_EQ(Send(1544, 0, 0), -1);
    EXPECT_EQ(Send(1545, 0, 0), 0);
    Send(1544, 0, L(&band));
    EXPECT_EQ(Send(1546), 0);
    EXPECT_EQ(Send(1545, 0, 0), 0);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, NullPointersChangeNothing) {
    const float value = 5.0f;
    EXPECT_EQ(gauge_->PaintsIn([&] { EXPECT_EQ(Send(1532, 0, 1), 0); }), 0);
    EXPECT_EQ(Send(1529, 0, L(&value)), 0);
    EXPECT_EQ(Send(1529, W(&value), 0), 0);
    EXPECT_EQ(Send(1534, 0, L(&value)), 0);
    EXPECT_EQ(Send(1534, W(&value), 0), 0);
    for (const UINT message : {1539u, 1540u, 1541u, 1542u})
        EXPECT_EQ(Send(message, 0, 10), 0) << message;
    EXPECT_TRUE(ShowsModelWhenPainted());
}

TEST_F(AnalogGaugeTest, NumbersBetweenAreNotItsOwn) {
    float value = 5.0f;
    EXPECT_EQ(gauge_->PaintsIn([&] {
        for (const UINT message : {1523u, 1525u, 1530u, 1531u, 1535u, 1536u, 1547u})
            EXPECT_EQ(Send(message, W(&value), L(&value)), 0) << message;
    }),
              0);
    EXPECT_EQ(value, 5.0f);
    EXPECT_TRUE(ShowsModelWhenPainted());
}

}  // namespace
}  // namespace corvex
