#include <gtest/gtest.h>

#include "tests/controls/window/PaintTestHelper.h"
#include "tests/views/DashTestHelper.h"

namespace corvex::test {
namespace {

class DashPageGaugesTest : public DashTest {
protected:
    void ExpectPlace(const RECT& expected, HWND gauge) {
        const RECT place = PlaceInParent(gauge);
        EXPECT_EQ(expected.left, place.left);
        EXPECT_EQ(expected.top, place.top);
        EXPECT_EQ(expected.right, place.right);
        EXPECT_EQ(expected.bottom, place.bottom);
    }
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
        const RECT place = PlaceInParent(of);
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
        ::SendMessageA(gauge, AGM_SETRANGE, reinterpret_cast<WPARAM>(&low), reinterpret_cast<LPARAM>(&high));
    }
    static void ExpectSamePicture(const TestBitmap& first, const TestBitmap& second, const RECT& place) {
        int different = 0;
        for (int y = 0; y < place.bottom - place.top; ++y) {
            for (int x = 0; x < place.right - place.left; ++x)
                different += first.At(x, y) == second.At(x, y) ? 0 : 1;
        }
        EXPECT_EQ(0, different);
    }
    static void Repaint(HWND window) { ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
};

TEST_F(DashPageGaugesTest, EveryEntryHasItsGaugeOnShow) {
    AddEntry(0, speed);
    AddEntry(1, load);
    AddEntry(2, fan);
    Show();
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
    ExpectPlace(State().Area(), Gauge(0));
}

TEST_F(DashPageGaugesTest, AnEntryOfAllPercentFillsTheArea) {
    ShowOne(0, speed);
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1600, 800}, std::pair{300, 200}}) {
        Resize(width, height);
        ExpectPlace(State().Area(), Gauge(0));
        EXPECT_EQ(PlaceInParent(Item(session.dashPage, IDC_DASH_COMBO)).bottom + 3, State().Area().top);
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
        ExpectPlace({0, area.top, 33 * w / 100, 50 * h / 100 + area.top}, Gauge(0));
        ExpectPlace({33 * w / 100, area.top, 66 * w / 100, 50 * h / 100 + area.top}, Gauge(1));
        ExpectPlace({0, 50 * h / 100 + area.top, w, 97 * h / 100 + area.top}, Gauge(2));
    }
}

TEST_F(DashPageGaugesTest, APageTooSmallForThemIsSurvived) {
    ShowOne(0, speed);
    Resize(1, 1);
    EXPECT_EQ(0, ClientOf(Gauge(0)).bottom);
    Resize(0, 0);
    Update({50});
    Resize(700, 420);
    ExpectPlace(State().Area(), Gauge(0));
}

TEST_F(DashPageGaugesTest, AnUnknownTypeLeavesAGapAndTheOthersInPlace) {
    AddEntry(0, speed);
    AddEntry(7, speed);
    AddEntry(2, fan);
    Show();
    ASSERT_EQ(3U, State().Gauges().size());
    EXPECT_EQ(nullptr, Gauge(1));
    EXPECT_EQ(10002, ::GetDlgCtrlID(Gauge(2)));
    EXPECT_EQ(dashboard->GetEntry(2), EntryOf(Gauge(2)));
    GaugeRecorder status(Gauge(2));
    Update({50, 0, 1});
    EXPECT_EQ(50, Needle(Gauge(0)));
    EXPECT_EQ((std::vector<std::string>{"state 1 redraw"}), status.lines);
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
    ExpectPlace(State().Area(), Gauge(1));
    EXPECT_EQ(nullptr, ::GetDlgItem(DashWindow(), 10002));
    Choose(DashWindow(), IDC_DASH_COMBO, -1);
    EXPECT_TRUE(State().Gauges().empty());
    EXPECT_EQ(nullptr, ::GetDlgItem(DashWindow(), 10000));
}

TEST_F(DashPageGaugesTest, ExtremesStartAnewWithTheGauges) {
    AddTitled<ADXDashboard>(session.definition, "TWO", "Two");
    ShowOne(0, speed);
    const RECT place = ClientOf(Gauge(0));
    const TestBitmap before(Gauge(0));
    Update({90});
    Update({0});
    const TestBitmap moved(Gauge(0));
    bool isOther = false;
    for (int y = 0; y < place.bottom; ++y) {
        for (int x = 0; x < place.right; ++x)
            isOther = isOther || before.At(x, y) != moved.At(x, y);
    }
    EXPECT_TRUE(isOther) << "the highest value shows";
    const std::uint8_t rest = 0;
    speed->GetRaw(PacketView(&rest, 1));
    Choose(DashWindow(), IDC_DASH_COMBO, 1);
    Choose(DashWindow(), IDC_DASH_COMBO, 0);
    ::UpdateWindow(Gauge(0));
    ExpectSamePicture(before, TestBitmap(Gauge(0)), place);
}

TEST_F(DashPageGaugesTest, TheFirstValueIsCutByTheRangeBeforeItsOwn) {
    speed->rangelow = 160.0F;
    speed->rangehigh = 240.0F;
    const std::uint8_t packet = 200;
    speed->GetRaw(PacketView(&packet, 1));
    ShowOne(0, speed);
    const TestBitmap bound(Gauge(0));
    // Cut at 150, where the scale of a new gauge ends, so that the lowest value seen lies below this one.
    const HWND twin = Twin(Gauge(0));
    ::SendMessageA(twin, AGM_SETTITLE, reinterpret_cast<WPARAM>("Speed"), 5);
    ::SendMessageA(twin, AGM_SETUNITS, reinterpret_cast<WPARAM>("km/h"), 4);
    SetValue(twin, 150.0F);
    SetRange(twin, 160.0F, 240.0F);
    SetValue(twin, 200.0F);
    Repaint(twin);
    ExpectSamePicture(TestBitmap(twin), bound, ClientOf(twin));
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

TEST_F(DashPageGaugesTest, AReloadShowsTheFirstDashboardAgain) {
    auto* const second = AddTitled<ADXDashboard>(session.definition, "TWO", "Two");
    AddEntry(1, load, second);
    ShowOne(0, speed);
    Choose(DashWindow(), IDC_DASH_COMBO, 1);
    session.definition.Clear();
    FillDefinition();
    AddTitled<ADXDashboard>(session.definition, "TWO", "Two");
    AddEntry(2, fan);
    RefreshDashPage(session);
    EXPECT_EQ(0, ::SendMessageA(Item(session.dashPage, IDC_DASH_COMBO), CB_GETCURSEL, 0, 0));
    ASSERT_EQ(1U, State().Gauges().size());
    EXPECT_EQ("QZSTATUSGAUGE", ClassNameOf(Gauge(0)));
}

TEST_F(DashPageGaugesTest, ASampleFromAWorkerIsPaintedWhenTheCallReturns) {
    AddEntry(0, speed);
    AddEntry(2, fan);
    Show();
    GaugeRecorder recorder(Gauge(0)), lampRecorder(Gauge(1));
    bool hasUpdate = true;
    WhilePumping([&] {
        for (std::uint8_t i = 1; i <= 20; ++i)
            Update({i, 0, i});
        hasUpdate = ::GetUpdateRect(Gauge(0), nullptr, FALSE) != FALSE;
    });
    EXPECT_FALSE(hasUpdate);
    EXPECT_EQ(20U, recorder.lines.size());
    EXPECT_GE(recorder.paints, 20);
    EXPECT_GE(lampRecorder.paints, 20);
    EXPECT_EQ(20, Needle(Gauge(0)));
}

TEST_F(DashPageGaugesTest, AWorkerFindsThePageGone) {
    ShowOne(0, speed);
    ::DestroyWindow(std::exchange(frame, nullptr));
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
        const RECT client = ClientOf(DashWindow()), gauge = PlaceInParent(Gauge(0));
        const TestBitmap picture(DashWindow());
        EXPECT_EQ(white, picture.At(gauge.left, gauge.top));
        EXPECT_EQ(white, picture.At(gauge.right - 1, gauge.bottom - 1));
        EXPECT_EQ(std::set<COLORREF>{ground}, picture.ColoursIn({gauge.right, gauge.top, client.right, client.bottom}));
        EXPECT_EQ(std::set<COLORREF>{ground},
                  picture.ColoursIn({gauge.left, gauge.bottom, client.right, client.bottom}));
    }
    RefreshDashPage(session);
    dashboard->SetEntryCount(0);
    RefreshDashPage(session);
    ::UpdateWindow(DashWindow());
    const RECT client = ClientOf(DashWindow());
    EXPECT_EQ(std::set<COLORREF>{ground},
              TestBitmap(DashWindow()).ColoursIn({0, State().Area().top, client.right, client.bottom}));
}

TEST_F(DashPageGaugesTest, AGaugeOfAnotherSizeIsPaintedWhole) {
    ShowOne(0, speed);
    GaugeRecorder recorder(Gauge(0));
    Resize(500, 300);
    ::UpdateWindow(Gauge(0));
    EXPECT_GT(recorder.paints, 0);
    const TestBitmap resized(Gauge(0));
    Repaint(Gauge(0));
    ExpectSamePicture(TestBitmap(Gauge(0)), resized, ClientOf(Gauge(0)));
    const int before = recorder.paints;
    ::SendMessageA(DashWindow(), WM_SIZE, 0, 0);
    ::UpdateWindow(Gauge(0));
    EXPECT_EQ(before, recorder.paints) << "a layout that changes nothing";
}

TEST_F(DashPageGaugesTest, ManyDashboardsLeaveNoObjectsBehind) {
    AddEntry(0, speed);
    AddEntry(1, load);
    AddEntry(2, fan);
    Show();
    const std::size_t before = AllGdiObjects();
    for (int i = 0; i < 30; ++i) {
        RefreshDashPage(session);
        Update({static_cast<std::uint8_t>(i), 0, 1});
    }
    EXPECT_EQ(before, AllGdiObjects());
}

}  // namespace
}  // namespace corvex::test
