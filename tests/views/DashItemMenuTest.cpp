#include <gtest/gtest.h>

#include "tests/views/DashTestHelper.h"

namespace corvex::test {
namespace {

class DashItemMenuTest : public DashTest {
protected:
    Strings RowsOn(HWND gauge) {
        Strings rows;
        Press(gauge, {}, [&](HMENU menu) { rows = RowsOf(menu); });
        return rows;
    }
    // Does this on the main thread while the menu is open, and chooses the first value if it is still there.
    void PressAfter(HWND gauge, const std::function<void()>& work) {
        Press(gauge, KeysFor(0, 0), [&](HMENU) { mainThread.Run(work); });
    }
    // The same, and waits for the menu to close by itself.
    void ExpectItCloses(HWND gauge, const std::function<void()>& work) {
        Press(gauge, {}, [&](HMENU) {
            mainThread.Run(work);
            EXPECT_TRUE(MenuCloses());
        });
    }

    MainThread mainThread;
};

TEST_F(DashItemMenuTest, OffersValuesAndBesideADialBitmasksTooWithLongTitlesCut) {
    ShowAll({{0, load}, {1, speed}, {2, lamp}});
    EXPECT_EQ((Strings{"1 Values", "10 Speed", "11* Load"}), RowsOn(Gauge(0)));
    EXPECT_EQ((Strings{"1 Values", "10* Speed", "11 Load", "2 Bitmasks", "12 Fan", "13 Lamp"}), RowsOn(Gauge(1)));
    EXPECT_EQ((Strings{"1 Values", "10 Speed", "11 Load", "2 Bitmasks", "12 Fan", "13* Lamp"}), RowsOn(Gauge(2)));
    speed->SetTitle(std::string(300, 'y').c_str(), 300);
    EXPECT_EQ("10 " + std::string(255, 'y'), RowsOn(Gauge(0))[1]);
}

TEST_F(DashItemMenuTest, NothingChosenChangesNothing) {
    ShowOne(0, speed);
    GaugeRecorder recorder(Gauge(0));
    Press(Gauge(0), {});
    EXPECT_TRUE(recorder.lines.empty());
    EXPECT_EQ(speed, dashboard->GetEntry(0)->item);
    EXPECT_EQ(0U, session.dashChanged);
}

TEST_F(DashItemMenuTest, AnotherValueIsBoundToTheSameGauge) {
    ShowOne(0, speed);
    const HWND gauge = Gauge(0);
    GaugeRecorder recorder(gauge);
    Press(gauge, KeysFor(0, 1));
    EXPECT_EQ(gauge, Gauge(0));
    EXPECT_EQ(load, dashboard->GetEntry(0)->item);
    EXPECT_EQ(load->GetIdHash(), dashboard->GetEntry(0)->itemidhash);
    EXPECT_EQ(0U, dashboard->GetEntry(0)->gaugetype);
    EXPECT_EQ(1U, session.dashChanged);
    ASSERT_FALSE(recorder.lines.empty());
    EXPECT_EQ("title Load", recorder.lines[0]);
    EXPECT_FALSE(::GetUpdateRect(gauge, nullptr, FALSE)) << "painted at once";
    Update({10, 90});
    EXPECT_EQ(45, Needle(gauge));
}

TEST_F(DashItemMenuTest, TheSameValueIsBoundAgainByItsOwnRange) {
    speed->rangelow = 20.0F;
    ShowOne(0, speed);
    Update({100});
    GaugeRecorder recorder(Gauge(0));
    Press(Gauge(0), KeysFor(0, 0));
    EXPECT_EQ((Strings{"title Speed", "units km/h", "value 20 redraw", "digits 2", "range 20 255", "no alarms",
                       "value 100 redraw"}),
              recorder.lines);
    EXPECT_EQ(1U, session.dashChanged);
}

TEST_F(DashItemMenuTest, AReadoutBecomesALampForABitmask) {
    ShowAll({{0, speed}, {1, load}});
    const HWND readout = Gauge(1);
    Press(readout, KeysFor(1, 0));
    EXPECT_FALSE(::IsWindow(readout));
    EXPECT_EQ("QZSTATUSGAUGE", ClassNameOf(Gauge(1)));
    EXPECT_EQ(10001, ::GetDlgCtrlID(Gauge(1)));
    EXPECT_TRUE(::IsWindowVisible(Gauge(1)));
    EXPECT_EQ(State().Area().right, PlaceOf(Gauge(1)).right);
    EXPECT_EQ(2U, dashboard->GetEntry(1)->gaugetype);
    EXPECT_EQ(fan, dashboard->GetEntry(1)->item);
    EXPECT_EQ("Fan", TextOfGauge(Gauge(1), SGM_GETTITLE));
    EXPECT_EQ(2U, State().Gauges().size());
    GaugeRecorder recorder(Gauge(1));
    Update({10, 90, 1});
    EXPECT_EQ((Strings{"state 1 redraw"}), recorder.lines);
}

TEST_F(DashItemMenuTest, AGaugeBecomesWhatShowsTheItemUnlessItHadNone) {
    const struct {
        std::uint32_t before;
        ADXObject* item;
        int submenu, row;
        std::uint32_t after;
        ADXObject* chosen;
    } cases[] = {{2, lamp, 0, 1, 1, load},
                 {2, lamp, 1, 0, 2, fan},
                 {0, fan, 0, 0, 1, speed},
                 {1, nullptr, 1, 0, 1, fan},
                 {0, nullptr, 0, 0, 0, speed}};
    for (const auto& each : cases)
        AddEntry(each.before, each.item);
    Show();
    for (std::uint32_t i = 0; i < std::size(cases); ++i) {
        const HWND gauge = Gauge(i);
        Press(gauge, KeysFor(cases[i].submenu, cases[i].row));
        EXPECT_EQ(cases[i].after == cases[i].before, gauge == Gauge(i)) << i;
        EXPECT_EQ(cases[i].after, dashboard->GetEntry(i)->gaugetype) << i;
        EXPECT_EQ(cases[i].chosen, dashboard->GetEntry(i)->item) << i;
    }
    EXPECT_EQ("Fan", TextOfGauge(Gauge(1), SGM_GETTITLE));
    Update({10, 90, 1});
    EXPECT_EQ(45.0F, Digits(Gauge(0)));
}

TEST_F(DashItemMenuTest, OnlyAGaugesCallOpensIt) {
    ShowOne(0, speed);
    const auto gauge = reinterpret_cast<LPARAM>(Gauge(0));
    // None of these comes to a menu, which would hold this thread for good.
    ::SendMessageA(DashWindow(), WM_COMMAND, MAKEWPARAM(10000, 1575), gauge);
    ::SendMessageA(DashWindow(), WM_COMMAND, MAKEWPARAM(9999, kAnalogGaugeMenuCode), gauge);
    ::SendMessageA(DashWindow(), WM_COMMAND, MAKEWPARAM(10001, kAnalogGaugeMenuCode), gauge);
    ::SendMessageA(DashWindow(), WM_COMMAND, MAKEWPARAM(65535, kDigitalReadoutMenuCode), gauge);
    session.currentDashboard = nullptr;
    AskForMenu(Gauge(0));
}

TEST_F(DashItemMenuTest, ALoadWhileItIsOpenDropsTheChoice) {
    ShowOne(0, load);
    const HWND gauge = Gauge(0);
    PressAfter(gauge, [&] {
        session.definition.Clear();
        FillDefinition();
        AddEntry(0, load);
        RefreshDashPage(session);
    });
    EXPECT_FALSE(::IsWindow(gauge));
    ASSERT_EQ(1U, State().Gauges().size());
    EXPECT_EQ(load, dashboard->GetEntry(0)->item);
    EXPECT_EQ("Load", TextOfGauge(Gauge(0), AGM_GETTITLE));
    PressAfter(Gauge(0), [&] {
        session.definition.Clear();
        RefreshDashPage(session);
    });
    EXPECT_TRUE(State().Gauges().empty());
    EXPECT_EQ(0U, session.dashChanged);
}

TEST_F(DashItemMenuTest, SoDoTheChoiceOfAnotherDashboardAndThePagesEnd) {
    auto* const second = AddTitled<ADXDashboard>(session.definition, "TWO", "Two");
    AddEntry(0, load, second);
    ShowOne(0, load);
    PressAfter(Gauge(0), [&] { Choose(DashWindow(), IDC_DASH_COMBO, 1); });
    PressAfter(Gauge(0), [&] { EndFrame(); });
    EXPECT_EQ(load, dashboard->GetEntry(0)->item);
    EXPECT_EQ(load, second->GetEntry(0)->item);
}

TEST_F(DashItemMenuTest, ItClosesWhenItsDashboardGoes) {
    AddTitled<ADXDashboard>(session.definition, "TWO", "Two");
    ShowOne(0, load);
    ExpectItCloses(Gauge(0), [&] { RefreshDashPage(session); });
    ExpectItCloses(Gauge(0), [&] { Choose(DashWindow(), IDC_DASH_COMBO, 1); });
    Choose(DashWindow(), IDC_DASH_COMBO, 0);
    ExpectItCloses(Gauge(0), [&] { EndFrame(); });
    EXPECT_EQ(nullptr, session.dashPage);
    EXPECT_EQ(load, dashboard->GetEntry(0)->item);
}

TEST_F(DashItemMenuTest, SamplesGoOnWhileItIsOpen) {
    ShowOne(0, load);
    const HWND gauge = Gauge(0);
    int needle = 0;
    Press(gauge, KeysFor(0, 0), [&](HMENU) {
        Update({10, 60});
        needle = Needle(gauge);
    });
    EXPECT_EQ(30, needle);
    EXPECT_EQ(speed, dashboard->GetEntry(0)->item);
}

}  // namespace
}  // namespace corvex::test
