#include <gtest/gtest.h>

#include "tests/views/DashTestHelper.h"

namespace corvex::test {
namespace {

// The gauges of a page, made and bound one by one, or updated by the page.
class DashGaugeTest : public DashTest {
protected:
    HWND Make(std::uint32_t gaugetype, ADXObject* item) {
        if (session.dashPage == nullptr) CreateDashPage(session);
        entry = Entry(gaugetype, item);
        return MakeGauge(DashWindow(), &entry, 4);
    }
    std::vector<std::string> ToldWhenBound(HWND gauge) {
        GaugeRecorder recorder(gauge);
        BindGauge(gauge, session.definition);
        return recorder.lines;
    }
    ADXDGENTRY entry;
};

TEST_F(DashGaugeTest, EachTypeHasItsClass) {
    EXPECT_EQ("QZANALOGGAUGE", ClassNameOf(Make(0, speed)));
    EXPECT_EQ("QZDIGITALGAUGEREADOUT", ClassNameOf(Make(1, speed)));
    EXPECT_EQ("QZSTATUSGAUGE", ClassNameOf(Make(2, fan)));
    for (const std::uint32_t type : {3U, 7U, 0xFFFFFFFFU})
        EXPECT_EQ(nullptr, Make(type, speed));
}

TEST_F(DashGaugeTest, IsAHiddenChildUntilItIsLaidOut) {
    const HWND gauge = Make(0, speed);
    EXPECT_EQ(DashWindow(), ::GetParent(gauge));
    EXPECT_EQ(10004, ::GetDlgCtrlID(gauge));
    const RECT place = PlaceInParent(gauge);
    EXPECT_EQ(0, place.left);
    EXPECT_EQ(0, place.top);
    EXPECT_EQ(300, place.right);
    EXPECT_EQ(300, place.bottom);
    EXPECT_EQ(&entry, EntryOf(gauge));
    EXPECT_EQ(static_cast<LONG_PTR>(WS_CHILD), ::GetWindowLongPtrA(gauge, GWL_STYLE) & (WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(0, ::GetWindowLongPtrA(gauge, GWL_EXSTYLE));
}

TEST_F(DashGaugeTest, NoWindowHasNoEntry) {
    EXPECT_EQ(nullptr, EntryOf(nullptr));
    const HWND gauge = Make(0, speed);
    ::DestroyWindow(gauge);
    EXPECT_EQ(nullptr, EntryOf(gauge));
    BindGauge(gauge, session.definition);
    EXPECT_FALSE(ReadGauge(gauge, session.definition, nullptr, 0).has_value());
}

TEST_F(DashGaugeTest, AnAnalogGaugeIsToldInThisOrder) {
    speed->flags = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
    speed->digcount = 1;
    speed->rangelow = 10.0F;
    speed->rangehigh = 200.0F;
    speed->alarmlow = 20.0F;
    speed->alarmhigh = 250.0F;
    const std::uint8_t packet = 90;
    speed->GetRaw(PacketView(&packet, 1));
    EXPECT_EQ(
        (std::vector<std::string>{"title Speed", "units km/h", "value 10 redraw", "digits 1", "range 10 200",
                                  "no alarms", "alarm 10 200 250 0000ff", "alarm 10 10 20 00b4fa", "value 90 redraw"}),
        ToldWhenBound(Make(0, speed)));
}

TEST_F(DashGaugeTest, AnAnalogGaugeKeepsItsBandsApart) {
    speed->flags = ADXValue::kAlarmHigh | ADXValue::kAlarmLow;
    const HWND gauge = Make(0, speed);
    BindGauge(gauge, session.definition);
    BindGauge(gauge, session.definition);
    EXPECT_EQ(1, ::SendMessageA(gauge, AGM_GETALARM, 1, 0));
    EXPECT_EQ(0, ::SendMessageA(gauge, AGM_GETALARM, 2, 0));
}

TEST_F(DashGaugeTest, ALampIsToldItsWordsAlone) {
    EXPECT_EQ((std::vector<std::string>{"title Fan", "true runs", "false rests"}), ToldWhenBound(Make(2, fan)));
}

TEST_F(DashGaugeTest, AReadoutIsSetUp) {
    speed->flags = ADXValue::kAlarmHigh;
    speed->alarmlow = 12.0F;
    speed->alarmhigh = 99.0F;
    speed->digcount = 3;
    const std::uint8_t packet = 45;
    speed->GetRaw(PacketView(&packet, 1));
    const HWND gauge = Make(1, speed);
    BindGauge(gauge, session.definition);
    DigitalReadoutInfo info{};
    ASSERT_EQ(1U, DigitalReadoutGetInfo(gauge, &info));
    EXPECT_STREQ("Speed", info.title);
    EXPECT_STREQ("km/h", info.units);
    EXPECT_EQ(1, info.floating);
    EXPECT_EQ(3U, info.decimals);
    EXPECT_EQ(0x0080FFU, info.lowColour);
    EXPECT_EQ(0x0000FFU, info.highColour);
    EXPECT_EQ(4U, info.highLimitEnabled);
    EXPECT_EQ(0U, info.lowLimitEnabled);
    EXPECT_EQ(12.0F, DigitalReadoutGetLowLimit(gauge));
    EXPECT_EQ(99.0F, DigitalReadoutGetHighLimit(gauge));
    EXPECT_EQ(45.0F, Digits(gauge));
}

TEST_F(DashGaugeTest, AReadoutOfWholeNumbersHasOneDecimal) {
    speed->outputtype = ADXValue::kInteger;
    speed->digcount = 3;
    speed->flags = ADXValue::kAlarmLow;
    const HWND gauge = Make(1, speed);
    BindGauge(gauge, session.definition);
    DigitalReadoutInfo info{};
    DigitalReadoutGetInfo(gauge, &info);
    EXPECT_EQ(0, info.floating);
    EXPECT_EQ(1U, info.decimals);
    EXPECT_EQ(0U, info.highLimitEnabled);
    EXPECT_EQ(8U, info.lowLimitEnabled);
}

TEST_F(DashGaugeTest, WhatDoesNotFitKeepsItsDefaults) {
    EXPECT_TRUE(ToldWhenBound(Make(0, fan)).empty());
    EXPECT_TRUE(ToldWhenBound(Make(0, nullptr)).empty());
    EXPECT_TRUE(ToldWhenBound(Make(2, speed)).empty());
    const HWND readout = Make(1, fan);
    BindGauge(readout, session.definition);
    DigitalReadoutInfo info{};
    DigitalReadoutGetInfo(readout, &info);
    EXPECT_STREQ("", info.title);
}

TEST_F(DashGaugeTest, TheLongestTextsAreSurvived) {
    const std::string text(300, 'x');
    for (ADXObject* const object : {static_cast<ADXObject*>(speed), static_cast<ADXObject*>(fan)})
        object->SetTitle(text.c_str(), 300);
    speed->SetUnits(text.c_str(), 300);
    fan->SetTrueString(text.c_str(), 300);
    fan->SetFalseString(text.c_str(), 300);
    for (const std::uint32_t type : {0U, 1U, 2U})
        AddEntry(type, type == 2 ? static_cast<ADXObject*>(fan) : speed);
    Show();
    EXPECT_EQ(text.substr(0, 100), TextOfGauge(Gauge(0), AGM_GETTITLE));
    EXPECT_EQ(text.substr(0, 100), TextOfGauge(Gauge(0), AGM_GETUNITS));
    DigitalReadoutInfo info{};
    DigitalReadoutGetInfo(Gauge(1), &info);
    EXPECT_EQ(text.substr(0, 79), info.title);
    EXPECT_EQ(text.substr(0, 49), info.units);
    EXPECT_EQ(text.substr(0, 100), TextOfGauge(Gauge(2), SGM_GETTITLE));
    EXPECT_EQ(text.substr(0, 100), TextOfGauge(Gauge(2), SGM_GETTRUETEXT));
    Update({1, 1, 1});
}

TEST_F(DashGaugeTest, ASampleMovesWhatIsOfItsCommandOrOfNone) {
    load->parentcmdidhash = kCommand;
    lamp->parentcmdidhash = kOther;
    AddEntry(0, speed);
    AddEntry(1, load);
    AddEntry(2, fan);
    AddEntry(2, lamp);
    Show();
    GaugeRecorder analog(Gauge(0)), first(Gauge(2)), second(Gauge(3));
    Update({50, 80, 3}, kCommand);
    EXPECT_EQ((std::vector<std::string>{"value 50 redraw"}), analog.lines);
    EXPECT_EQ(40.0F, Digits(Gauge(1)));
    EXPECT_EQ((std::vector<std::string>{"state 1 redraw"}), first.lines);
    EXPECT_TRUE(second.lines.empty());

    Update({60, 90, 2}, kOther);
    EXPECT_EQ(60, Needle(Gauge(0)));
    EXPECT_EQ(40.0F, Digits(Gauge(1))) << "of another command, and so it stays";
    EXPECT_EQ("state 0 redraw", first.lines.back());
    EXPECT_EQ((std::vector<std::string>{"state 1 redraw"}), second.lines);
}

TEST_F(DashGaugeTest, ASampleWithoutAPacketShowsTheLastWords) {
    speed->parentcmdidhash = fan->parentcmdidhash = kCommand;
    AddEntry(0, speed);
    AddEntry(1, speed);
    AddEntry(2, fan);
    Show();
    const std::uint8_t packet[] = {70, 0, 1};
    session.definition.UpdateValues(PacketView(packet, 3), kCommand);
    EXPECT_EQ(0, Needle(Gauge(0)));
    GaugeRecorder status(Gauge(2));
    session.PublishSample(0.0, nullptr, kOther);
    EXPECT_EQ(0, Needle(Gauge(0)));
    session.PublishSample(0.0, nullptr, kCommand);
    EXPECT_EQ(70, Needle(Gauge(0)));
    EXPECT_EQ(70.0F, Digits(Gauge(1)));
    EXPECT_EQ((std::vector<std::string>{"state 1 redraw"}), status.lines);
}

TEST_F(DashGaugeTest, AGaugeWithoutAFittingItemNeverMoves) {
    AddEntry(0, nullptr);
    AddEntry(0, fan);
    AddEntry(2, speed);
    AddEntry(2, nullptr);
    Show();
    GaugeRecorder none(Gauge(0)), bit(Gauge(1)), value(Gauge(2)), noLamp(Gauge(3));
    Update({50, 80, 3});
    session.PublishSample(0.0, nullptr, kCommand);
    for (const GaugeRecorder* recorder : {&none, &bit, &value, &noLamp})
        EXPECT_TRUE(recorder->lines.empty());
}

}  // namespace
}  // namespace corvex::test
