#include <gtest/gtest.h>

#include "tests/views/DashTestHelper.h"

namespace corvex::test {
namespace {

class DashPageGaugesTest : public DashTest {
protected:
    static ADXDGENTRY At(std::uint16_t left, std::uint16_t top, std::uint16_t right, std::uint16_t bottom) {
        ADXDGENTRY entry;
        entry.left = left;
        entry.top = top;
        entry.right = right;
        entry.bottom = bottom;
        return entry;
    }
    // A gauge told these things by hand, in the place of another.
    HWND Twin(HWND of) {
        const RECT place = PlaceOf(of);
        const HWND twin = ::CreateWindowExA(0, kAnalogGaugeClass, "", WS_CHILD | WS_VISIBLE, place.left, place.top,
                                            place.right - place.left, place.bottom - place.top, DashWindow(), nullptr,
                                            static_cast<HINSTANCE>(session.instance), nullptr);
        ::ShowWindow(of, SW_HIDE);
        return twin;
    }
    static void SetValue(HWND gauge, float value) {
        ::SendMessageA(gauge, AGM_SETVALUE, reinterpret_cast<WPARAM>(&value), TRUE);
    }
    static void SetRange(HWND gauge, float low, float high) {
        ::SendMessageA(gauge, AGM_SETRANGE, reinterpret_cast<WPARAM>(&low), L(&high));
    }
    static void Repaint(HWND window) { ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
};

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

TEST_F(DashPageGaugesTest, PercentagesFollowTheAreasSize) {
    const ADXDGENTRY entries[] = {At(0, 0, 33, 50), At(33, 0, 66, 50), At(0, 50, 100, 97)};
    for (const ADXDGENTRY& entry : entries)
        dashboard->AddEntry(&entry);
    Show();
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1601, 803}}) {
        Resize(width, height);
        const RECT area = State().Area();
        const LONG w = area.right - area.left, h = area.bottom - area.top;
        EXPECT_EQ((RECT{0, area.top, 33 * w / 100, 50 * h / 100 + area.top}), PlaceOf(Gauge(0)));
        EXPECT_EQ((RECT{33 * w / 100, area.top, 66 * w / 100, 50 * h / 100 + area.top}), PlaceOf(Gauge(1)));
        EXPECT_EQ((RECT{0, 50 * h / 100 + area.top, w, 97 * h / 100 + area.top}), PlaceOf(Gauge(2)));
    }
}

TEST_F(DashPageGaugesTest, APageTooSmallForThemIsSurvived) {
    ShowOne(0, speed);
    Resize(1, 1);
    EXPECT_EQ(0, ClientOf(Gauge(0)).bottom);
    Resize(0, 0);
    Update({50});
    Resize(700, 420);
    EXPECT_EQ(State().Area(), PlaceOf(Gauge(0)));
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

TEST_F(DashPageGaugesTest, ExtremesStartAnewWithTheGauges) {
    AddTitled<ADXDashboard>(session.definition, "TWO", "Two");
    ShowOne(0, speed);
    const auto before = TestBitmap(Gauge(0)).Pixels();
    Update({90});
    Update({0});
    EXPECT_FALSE(before == TestBitmap(Gauge(0)).Pixels()) << "the highest value shows";
    const std::uint8_t rest = 0;
    speed->GetRaw(PacketView(&rest, 1));
    Choose(DashWindow(), IDC_DASH_COMBO, 1);
    Choose(DashWindow(), IDC_DASH_COMBO, 0);
    ::UpdateWindow(Gauge(0));
    EXPECT_TRUE(before == TestBitmap(Gauge(0)).Pixels());
}

TEST_F(DashPageGaugesTest, TheFirstValueIsCutByTheRangeBeforeItsOwn) {
    speed->rangelow = 160.0F;
    speed->rangehigh = 240.0F;
    const std::uint8_t packet = 200;
    speed->GetRaw(PacketView(&packet, 1));
    ShowOne(0, speed);
    const auto bound = TestBitmap(Gauge(0)).Pixels();
    // Cut at 150, where the scale of a new gauge ends, so that the lowest value seen lies below this one.
    const HWND twin = Twin(Gauge(0));
    ::SendMessageA(twin, AGM_SETTITLE, reinterpret_cast<WPARAM>("Speed"), 5);
    ::SendMessageA(twin, AGM_SETUNITS, reinterpret_cast<WPARAM>("km/h"), 4);
    SetValue(twin, 150.0F);
    SetRange(twin, 160.0F, 240.0F);
    SetValue(twin, 200.0F);
    Repaint(twin);
    EXPECT_TRUE(bound == TestBitmap(twin).Pixels());
}

TEST_F(DashPageGaugesTest, AnEmptyDefinitionLeavesAnEmptyPage) {
    ShowOne(0, speed);
    const HWND gauge = Gauge(0);
    session.definition.Clear();
    RefreshDashPage(session);
    EXPECT_FALSE(::IsWindow(gauge));
    EXPECT_TRUE(State().Gauges().empty());
    Update({50});
    Resize(900, 600);
}

TEST_F(DashPageGaugesTest, ASampleFromAWorkerIsPaintedWhenTheCallReturns) {
    ShowAll({{0, speed}, {2, fan}});
    GaugeRecorder recorder(Gauge(0)), lampRecorder(Gauge(1));
    bool hasUpdate = true;
    WhilePumping([&] {
        for (std::uint8_t i = 1; i <= 20; ++i)
            Update({i, 0, i});
        hasUpdate = ::GetUpdateRect(Gauge(0), nullptr, FALSE) != FALSE;
    });
    EXPECT_FALSE(hasUpdate);
    EXPECT_EQ(20U, recorder.lines.size());
    EXPECT_GE(recorder.Paints(), 20);
    EXPECT_GE(lampRecorder.Paints(), 20);
    EXPECT_EQ(20, Needle(Gauge(0)));
}

TEST_F(DashPageGaugesTest, AWorkerFindsThePageGone) {
    ShowOne(0, speed);
    EndFrame();
    Update({50});
}

TEST_F(DashPageGaugesTest, NothingOfAnOldLayoutIsLeft) {
    const ADXDGENTRY entry = At(0, 0, 50, 50);
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
    Repaint(Gauge(0));
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
