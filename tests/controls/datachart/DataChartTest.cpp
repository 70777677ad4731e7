#include <gtest/gtest.h>

#include "controls/datachart/DataChart.h"
#include "controls/window/GdiObjects.h"
#include "tests/controls/window/PaintTestHelper.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

constexpr COLORREF kFill = 0xF0F0F0, kRed = 0x0000FF;

class DataChartTest : public ::testing::Test {
protected:
    static bool RegisterOnce() { return DataChart::Register(::GetModuleHandleA(nullptr)); }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return gauge.Send(message, wParam, lParam);
    }
    DataChartAxis* AddAxis() const { return reinterpret_cast<DataChartAxis*>(Send(DCM_ADDAXIS)); }
    DataChartSeries* AddSeries() const { return reinterpret_cast<DataChartSeries*>(Send(DCM_ADDSERIES)); }
    // A time axis from 0 to 10 and one series of a thick red line against it.
    void Fill() {
        time = AddAxis();
        time->setPosition(AxisPosition::kBottom);
        time->setRange(0, 10);
        DataChartAxis* const left = AddAxis();
        left->setRange(0, 10);
        series = AddSeries();
        series->setXAxis(time);
        series->setYAxis(left);
        series->colour = kRed;
        series->lineWidth = 5;
        Send(DCM_RELAYOUT);
    }
    void Draw(float x, float y) const {
        series->addSample(x, y);
        Send(DCM_REPAINT);
    }
    bool Shows(COLORREF colour) const { return gauge.Shows(colour); }

    const bool registered = RegisterOnce();
    ShownControl gauge{kDataChartClass, 300, 200};
    const HWND window = gauge.Window();
    DataChartAxis* time = nullptr;
    DataChartSeries* series = nullptr;
};

TEST_F(DataChartTest, HandsOutItsAxesAndSeriesByIndex) {
    DataChartAxis *const first = AddAxis(), *const second = AddAxis();
    DataChartSeries* const line = AddSeries();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(Send(DCM_GETAXISCOUNT), 2);
    EXPECT_EQ(Send(DCM_GETSERIESCOUNT), 1);
    EXPECT_EQ(Send(DCM_GETAXIS, 1), reinterpret_cast<LRESULT>(second));
    EXPECT_EQ(Send(DCM_GETAXIS, 2), 0);
    EXPECT_EQ(Send(DCM_GETSERIES, 0), reinterpret_cast<LRESULT>(line));
    EXPECT_EQ(Send(DCM_GETSERIES, 1), 0);
    EXPECT_EQ(Send(1482), 0) << "no message of its own";
    line->setYAxis(first);
    EXPECT_EQ(Send(DCM_DELETEAXIS, 0), 0);
    EXPECT_EQ(Send(DCM_DELETEAXIS, 9), 1);
    EXPECT_EQ(Send(DCM_DELETESERIES, 9), 1);
    EXPECT_EQ(Send(DCM_DELETESERIES, 0), 1);
    EXPECT_EQ(Send(DCM_DELETEAXIS, 0), 1);
    EXPECT_EQ(Send(DCM_GETAXISCOUNT), 1);
    AddSeries();
    EXPECT_EQ(Send(DCM_CLEARSERIES), 1);
    EXPECT_EQ(Send(DCM_GETSERIESCOUNT), 0);
    EXPECT_EQ(Send(DCM_CLEARAXES), 1);
    EXPECT_EQ(Send(DCM_GETAXISCOUNT), 0);
}

TEST_F(DataChartTest, ASampleIsSeenWithTheNextRepaint) {
    Fill();
    Draw(1, 1);
    EXPECT_FALSE(Shows(kRed)) << "one sample is no line";
    series->addSample(9, 9);
    EXPECT_FALSE(Shows(kRed));
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(Send(DCM_REPAINT), 1); }), 1);
    EXPECT_TRUE(Shows(kRed));
    EXPECT_TRUE(Shows(kFill));
    EXPECT_EQ(Send(DCM_CLEARSAMPLES), 1);
    Send(DCM_REPAINT);
    EXPECT_FALSE(Shows(kRed));
}

TEST_F(DataChartTest, ScrollsAreLaidOutWhenTheyAreDrawn) {
    Fill();
    time->flags = kAxisAutoScroll;
    Draw(0, 5);
    const TestBitmap before(window);
    series->addSample(100, 5);
    series->addSample(200, 5);
    EXPECT_EQ(time->Maximum(), 201.5f);
    EXPECT_EQ(gauge.PaintsIn([&] { Send(DCM_REPAINT); }), 1);
    EXPECT_TRUE(Shows(kRed));
    const RECT labels{40, 175, 300, 200};
    EXPECT_FALSE(before.ColoursIn({0, 0, 300, 200}).contains(kRed));
    EXPECT_TRUE(before.Pixels(labels) != TestBitmap(window).Pixels(labels));
}

TEST_F(DataChartTest, ANewTitleShowsWithTheNextLayout) {
    const TestBitmap before(window);
    EXPECT_EQ(Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("A title of some length")), 1);
    const auto titleRow = [this] { return TestBitmap(window).ColoursIn({4, 4, 296, 16}); };
    Send(DCM_REPAINT);
    EXPECT_EQ(titleRow(), before.ColoursIn({4, 4, 296, 16}));
    Send(DCM_RELAYOUT);
    EXPECT_NE(titleRow(), before.ColoursIn({4, 4, 296, 16}));
    EXPECT_EQ(Send(WM_SETTEXT, 0, 0), 1);
    Send(DCM_RELAYOUT);
    EXPECT_EQ(titleRow(), before.ColoursIn({4, 4, 296, 16}));
}

TEST_F(DataChartTest, TheTextItWasMadeWithIsNoTitle) {
    const HWND named = ::CreateWindowExA(0, kDataChartClass, "made with it", WS_CHILD | WS_VISIBLE, 0, 0, 300, 200,
                                         gauge.Parent().Window(), nullptr, ::GetModuleHandleA(nullptr), nullptr);
    ::UpdateWindow(named);
    EXPECT_EQ(ColoursOf(named), ColoursOf(window));
    ::DestroyWindow(named);
}

TEST_F(DataChartTest, AnotherSizeIsLaidOutAtOnce) {
    Fill();
    Draw(0, 0);
    Draw(10, 10);
    for (const auto& [width, height] : {std::pair{200, 120}, std::pair{280, 190}, std::pair{3, 3}, std::pair{0, 0}}) {
        gauge.Resize(width, height);
        Send(DCM_REPAINT);
        EXPECT_EQ(width > 100, Shows(kRed)) << width;
        if (width < 100) continue;
        const std::vector<COLORREF> drawn = TestBitmap(window).Pixels();
        Send(DCM_RELAYOUT);
        EXPECT_TRUE(drawn == TestBitmap(window).Pixels()) << width;
    }
    gauge.Resize(300, 200);
    Send(DCM_REPAINT);
    EXPECT_TRUE(Shows(kRed));
}

TEST_F(DataChartTest, SwitchedOffItGoesOnDrawing) {
    Fill();
    Send(WM_SETREDRAW, FALSE);
    Draw(0, 0);
    Draw(10, 10);
    EXPECT_TRUE(Shows(kRed));
    Send(WM_SETREDRAW, TRUE);
}

TEST_F(DataChartTest, TakesKeysAndNoMouse) {
    EXPECT_EQ(Send(WM_GETDLGCODE), 133);
    EXPECT_EQ(Send(WM_CREATE), 1);
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK})
        EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(Send(message), 0); }), 0);
}

}  // namespace
}  // namespace corvex
