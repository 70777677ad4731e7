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
    Strings ToldWhenBound(HWND gauge) {
        GaugeRecorder recorder(gauge);
        BindGauge(gauge, session.definition);
        return recorder.lines;
    }
    ADXDGENTRY entry;
};

TEST_F(DashGaugeTest, IsAHiddenChildUntilItIsLaidOut) {
    const HWND gauge = Make(0, speed);
    EXPECT_EQ(DashWindow(), ::GetParent(gauge));
    EXPECT_EQ(10004, ::GetDlgCtrlID(gauge));
    EXPECT_EQ((RECT{0, 0, 300, 300}), PlaceOf(gauge));
    EXPECT_EQ(&entry, EntryOf(gauge));
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD), StyleOfWindow(gauge) & (WS_CHILD | WS_VISIBLE));
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
    EXPECT_EQ((Strings{"title Speed", "units km/h", "value 10 redraw", "digits 1", "range 10 200", "no alarms",
                       "alarm 10 200 250 0000ff", "alarm 10 10 20 00b4fa", "value 90 redraw"}),
              ToldWhenBound(Make(0, speed)));
}

TEST_F(DashGaugeTest, ALampIsToldItsWordsAlone) {
    EXPECT_EQ((Strings{"title Fan", "true runs", "false rests"}), ToldWhenBound(Make(2, fan)));
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

TEST_F(DashGaugeTest, ASampleMovesWhatIsOfItsCommandOrOfNone) {
    load->parentcmdidhash = kCommand;
    lamp->parentcmdidhash = kOther;
    ShowAll({{0, speed}, {1, load}, {2, fan}, {2, lamp}});
    GaugeRecorder analog(Gauge(0)), first(Gauge(2)), second(Gauge(3));
    Update({50, 80, 3}, kCommand);
    EXPECT_EQ((Strings{"value 50 redraw"}), analog.lines);
    EXPECT_EQ(40.0F, Digits(Gauge(1)));
    EXPECT_EQ((Strings{"state 1 redraw"}), first.lines);
    EXPECT_TRUE(second.lines.empty());

    Update({60, 90, 2}, kOther);
    EXPECT_EQ(60, Needle(Gauge(0)));
    EXPECT_EQ(40.0F, Digits(Gauge(1))) << "of another command, and so it stays";
    EXPECT_EQ("state 0 redraw", first.lines.back());
    EXPECT_EQ((Strings{"state 1 redraw"}), second.lines);
}

TEST_F(DashGaugeTest, ASampleWithoutAPacketShowsTheLastWords) {
    speed->parentcmdidhash = fan->parentcmdidhash = kCommand;
    ShowAll({{0, speed}, {1, speed}, {2, fan}});
    const std::uint8_t packet[] = {70, 0, 1};
    session.definition.UpdateValues(PacketView(packet, 3), kCommand);
    EXPECT_EQ(0, Needle(Gauge(0)));
    GaugeRecorder status(Gauge(2));
    session.PublishSample(0.0, nullptr, kOther);
    EXPECT_EQ(0, Needle(Gauge(0)));
    session.PublishSample(0.0, nullptr, kCommand);
    EXPECT_EQ(70, Needle(Gauge(0)));
    EXPECT_EQ(70.0F, Digits(Gauge(1)));
    EXPECT_EQ((Strings{"state 1 redraw"}), status.lines);
}

}  // namespace
}  // namespace corvex::test
