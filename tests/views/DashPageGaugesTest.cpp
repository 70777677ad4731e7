#include <gtest/gtest.h>

#include "tests/views/DashTestHelper.h"

namespace corvex::test {
namespace {

using DashPageGaugesTest = DashTest;

TEST_F(DashPageGaugesTest, EveryEntryHasItsGaugeOnShow) {
    ShowAll({{0, speed}, {1, load}, {2, fan}});
    ASSERT_EQ(3U, State().Gauges().size());
    const char* const classes[] = {"QZANALOGGAUGE", "QZDIGITALGAUGEREADOUT", "QZSTATUSGAUGE"};
    for (std::uint32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(classes[i], ClassNameOf(Gauge(i)));
        EXPECT_EQ(10000 + static_cast<int>(i), ::GetDlgCtrlID(Gauge(i)));
        EXPECT_TRUE(::IsWindowVisible(Gauge(i)));
        EXPECT_EQ(dashboard->GetEntry(i), EntryOf(Gauge(i)));
    }
    EXPECT_EQ("Speed", TextOfGauge(Gauge(0), AGM_GETTITLE));
    EXPECT_EQ("Fan", TextOfGauge(Gauge(2), SGM_GETTITLE));
}

TEST_F(DashPageGaugesTest, TheFirstDashboardHasItsGaugesFromTheStart) {
    AddEntry(0, speed);
    CreateDashPage(session);
    ASSERT_EQ(1U, State().Gauges().size());
    EXPECT_EQ(State().Area(), PlaceOf(Gauge(0)));
}

TEST_F(DashPageGaugesTest, OtherWindowsHaveNoState) {
    EXPECT_EQ(nullptr, PageOf<DashPage>(nullptr));
    EXPECT_EQ(nullptr, PageOf<DashPage>(frame));
    ShowDashboard(nullptr, frame);
}

TEST_F(DashPageGaugesTest, AnEntryOfAllPercentFillsTheArea) {
    ShowOne(0, speed);
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1600, 800}, std::pair{300, 200}}) {
        Resize(width, height);
        EXPECT_EQ(State().Area(), PlaceOf(Gauge(0)));
        const RECT client = ClientOf(Page(1)), combo = PlaceOf(Item(session.dashPage, IDC_DASH_COMBO));
        EXPECT_EQ((RECT{0, combo.bottom + 3, client.right, client.bottom}), State().Area());
    }
}

TEST_F(DashPageGaugesTest, AnUnknownTypeLeavesAGapAndTheOthersInPlace) {
    ShowAll({{0, speed}, {7, speed}, {2, fan}});
    ASSERT_EQ(3U, State().Gauges().size());
    EXPECT_EQ(nullptr, Gauge(1));
    EXPECT_EQ(10002, ::GetDlgCtrlID(Gauge(2)));
    EXPECT_EQ(dashboard->GetEntry(2), EntryOf(Gauge(2)));
    GaugeRecorder status(Gauge(2));
    Update({50, 0, 1});
    EXPECT_EQ(50, Needle(Gauge(0)));
    EXPECT_EQ((Strings{"state 1 redraw"}), status.lines);
    Resize(800, 500);
    // Its menu is for the entry that it shows.
    Press(Gauge(2), KeysFor(1, 1));
    EXPECT_EQ(lamp, dashboard->GetEntry(2)->item);
    EXPECT_EQ(7U, dashboard->GetEntry(1)->gaugetype);
    EXPECT_EQ(speed, dashboard->GetEntry(1)->item);
}

TEST_F(DashPageGaugesTest, AnotherDashboardMakesAllGaugesAnew) {
    auto* const second = AddTitled<ADXDashboard>(session.definition, "TWO", "Two");
    AddEntry(0, speed);
    AddEntry(1, load, second);
    AddEntry(2, fan, second);
    Show();
    const HWND first = Gauge(0);
    Choose(DashWindow(), IDC_DASH_COMBO, 1);
    EXPECT_FALSE(::IsWindow(first));
    ASSERT_EQ(2U, State().Gauges().size());
    EXPECT_EQ("QZDIGITALGAUGEREADOUT", ClassNameOf(Gauge(0)));
    EXPECT_EQ(State().Area(), PlaceOf(Gauge(1)));
    EXPECT_EQ(nullptr, ::GetDlgItem(DashWindow(), 10002));
    Choose(DashWindow(), IDC_DASH_COMBO, -1);
    EXPECT_TRUE(State().Gauges().empty());
    EXPECT_EQ(nullptr, ::GetDlgItem(DashWindow(), 10000));
}

TEST_F(DashPageGaugesTest, NothingOfAnOldLayoutIsLeft) {
    ADXDGENTRY entry;
    entry.right = entry.bottom = 50;
    dashboard->AddEntry(&entry);
    Show();
    const COLORREF ground = ::GetSysColor(COLOR_BTNFACE), white = RGB(255, 255, 255);
    for (const auto& [width, height] : {std::pair{640, 390}, std::pair{400, 300}, std::pair{650, 400}}) {
        Resize(width, height);
        ::UpdateWindow(DashWindow());
        ::UpdateWindow(Gauge(0));
        const RECT client = ClientOf(DashWindow()), gauge = PlaceOf(Gauge(0));
        const TestBitmap picture(DashWindow());
        EXPECT_EQ(white, picture.At(gauge.left, gauge.top));
        EXPECT_EQ(white, picture.At(gauge.right - 1, gauge.bottom - 1));
        EXPECT_EQ(Colours{ground}, picture.ColoursIn({gauge.right, gauge.top, client.right, client.bottom}));
        EXPECT_EQ(Colours{ground}, picture.ColoursIn({gauge.left, gauge.bottom, client.right, client.bottom}));
    }
    RefreshDashPage(session);
    dashboard->SetEntryCount(0);
    RefreshDashPage(session);
    ::UpdateWindow(DashWindow());
    const RECT client = ClientOf(DashWindow());
    EXPECT_EQ(Colours{ground},
              TestBitmap(DashWindow()).ColoursIn({0, State().Area().top, client.right, client.bottom}));
}

TEST_F(DashPageGaugesTest, AGaugeOfAnotherSizeIsPaintedWhole) {
    ShowOne(0, speed);
    GaugeRecorder recorder(Gauge(0));
    Resize(500, 300);
    ::UpdateWindow(Gauge(0));
    EXPECT_GT(recorder.Paints(), 0);
    const auto resized = TestBitmap(Gauge(0)).Pixels();
    ::RedrawWindow(Gauge(0), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_TRUE(resized == TestBitmap(Gauge(0)).Pixels());
    const int before = recorder.Paints();
    ::SendMessageA(DashWindow(), WM_SIZE, 0, 0);
    ::UpdateWindow(Gauge(0));
    EXPECT_EQ(before, recorder.Paints()) << "a layout that changes nothing";
}

TEST_F(DashPageGaugesTest, ManyDashboardsLeaveNoObjectsBehind) {
    ShowAll({{0, speed}, {1, load}, {2, fan}});
    const std::size_t before = AllGdiObjects();
    for (int i = 0; i < 30; ++i) {
        RefreshDashPage(session);
        Update({static_cast<std::uint8_t>(i), 0, 1});
    }
    EXPECT_EQ(before, AllGdiObjects());
}

}  // namespace
}  // namespace corvex::test
