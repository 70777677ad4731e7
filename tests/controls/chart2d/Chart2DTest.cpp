#include <gtest/gtest.h>

#include "tests/controls/chart2d/Chart2DWindowTest.h"

namespace corvex {
namespace {

TEST_F(Chart2DTest, AnswersEachMessage) {
    const auto add = [&](WPARAM index) { return Send(CH2M_ADDSERIES, index, FALSE); };
    const LPARAM first = add(0), last = add(99);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam, result;
    } cases[] = {
        {CH2M_GETSTYLE, 0, 0, 7},
        {CH2M_GETXTICKCOUNT, 0, 0, 11},
        {CH2M_GETYTICKCOUNT, 0, 0, 12},
        {CH2M_CLEARSTYLE, 2, TRUE, 0},
        {CH2M_GETSTYLE, 0, 0, 5},
        {CH2M_GETXTICKCOUNT, 0, 0, 0},
        {CH2M_SETSTYLE, 8, TRUE, 0},
        {CH2M_GETSTYLE, 0, 0, 13},
        {CH2M_SETSTYLE, 0, 0, 0},
        {CH2M_GETSTYLE, 0, 0, 0},
        {CH2M_REPAINT, 0, 0, 0},
        {CH2M_GETSERIESCOUNT, 0, 0, 3},
        {CH2M_GETSERIES, 0, 0, first},
        {CH2M_GETSERIES, 1, 0, L(series)},
        {CH2M_GETSERIES, 2, 0, last},
        {CH2M_GETSERIES, 3, 0, 0},
        {CH2M_GETSERIES, static_cast<WPARAM>(-1), 0, 0},
        {CH2M_DELETESERIES, static_cast<WPARAM>(first), TRUE, 1},
        {CH2M_DELETESERIES, static_cast<WPARAM>(first), TRUE, 0},
        {CH2M_DELETESERIES, 0, TRUE, 0},
        {CH2M_GETSERIESCOUNT, 0, 0, 2},
        {CH2M_GETCOLOR, 7, 0, 0xFF0000},
        {CH2M_SETCOLOR, 14, 0x123456, 1},
        {CH2M_GETCOLOR, 14, 0, 0x123456},
        {CH2M_SETCOLOR, 12, 0x123456, 1},
        {CH2M_SETCOLOR, static_cast<WPARAM>(-1), 0x123456, 1},
        {CH2M_GETCOLOR, 12, 0, 0},
        {CH2M_SETXTICKCOUNT, 0, 3, 0},
        {CH2M_SETYTICKCOUNT, 0, 4, 0},
        {CH2M_SETYTICKCOUNT, 0, -1, 0},
        {CH2M_GETXTICKCOUNT, 0, 0, 3},
        {CH2M_GETYTICKCOUNT, 0, 0, 4},
        {CH2M_SETXTICK, 0, 0, 0},
        {CH2M_SETYTICK, 0, 0, 0},
        {CH2M_SETSUBTITLE, 0, L("under"), 0},
        {CH2M_GETSUBTITLE, 0, 0, 5},
        {CH2M_SETSUBTITLE, 0, 0, 0},
        {CH2M_GETSUBTITLE, 0, 0, 0},
        {CH2M_SETLABELCALLBACK, 0, 0, 0},
        {1146, 1, 1, 0},
        {1150, 1, 1, 0},
        {WM_GETDLGCODE, 0, 0, 0x85},
        {WM_ERASEBKGND, 0, 0, 1},
        {WM_MOUSEACTIVATE, 0, 0, 1},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Send(one.message, one.wParam, one.lParam), one.result) << one.message << " " << one.wParam;
    EXPECT_EQ(::GetFocus(), window);
    EXPECT_EQ(told, std::vector<ToldOf2D>{});
}

TEST_F(Chart2DTest, MessagesThatRedrawPaintAtOnce) {
    for (const UINT message :
         {CH2M_SETSTYLE, CH2M_CLEARSTYLE, CH2M_ADDSERIES, CH2M_CLEARTICKS, CH2M_CLEARYTICKS, CH2M_DELETESERIES}) {
        for (const LPARAM redraw : {0, 1}) {
            const WPARAM wParam = message == CH2M_DELETESERIES ? W(AddSeries()) : 1;
            EXPECT_EQ(shown.PaintsIn([&] { Send(message, wParam, redraw); }), redraw) << message;
        }
    }
    EXPECT_EQ(shown.PaintsIn([&] { Send(CH2M_REPAINT); }), 1);
}

TEST_F(Chart2DTest, ClearingTicksLeavesANewSeriesToo) {
    const struct {
        UINT message;
        LRESULT xTicks, yTicks;
    } cases[] = {{CH2M_CLEARYTICKS, 11, 0}, {CH2M_CLEARTICKS, 0, 0}};
    LRESULT count = 1;
    for (const auto& one : cases) {
        Send(CH2M_SETSTYLE, kChart2DAnyTicks);
        const LRESULT added = Send(one.message, 0);
        EXPECT_EQ(Send(CH2M_GETSERIESCOUNT), ++count);
        EXPECT_NE(added, 0);
        EXPECT_EQ(Send(CH2M_GETSERIES, 0), added) << "at the index";
        EXPECT_EQ(Send(CH2M_GETXTICKCOUNT), one.xTicks);
        EXPECT_EQ(Send(CH2M_GETYTICKCOUNT), one.yTicks);
    }
}

TEST_F(Chart2DTest, RangesAndLimitsAreSetEndByEnd) {
    const float low = -5.0F, high = 9.0F, higher = 12.0F;
    for (const UINT set : {CH2M_SETXRANGE, CH2M_SETYRANGE, CH2M_SETXLIMITS, CH2M_SETYLIMITS}) {
        EXPECT_EQ(Ends(set + 1), std::pair(-255.0F, 255.0F));
        EXPECT_EQ(Send(set, W(&low), L(&high)), 0);
        EXPECT_EQ(Ends(set + 1), std::pair(-5.0F, 9.0F));
        Send(set, 0, L(&higher));
        Send(set);
        EXPECT_EQ(Ends(set + 1), std::pair(-5.0F, 12.0F));
        Send(set, W(&high));
        Send(set, 0, L(&low));
        const bool isRange = set < CH2M_SETXLIMITS;
        EXPECT_EQ(Ends(set + 1), std::pair(9.0F, isRange ? 9.0F : -5.0F)) << "raised";
    }
    Send(CH2M_SETSTYLE, kChart2DXFollows);
    Send(CH2M_SETXRANGE, W(&low), L(&high));
    EXPECT_EQ(Ends(CH2M_GETXRANGE), std::pair(-100.0F, 100.0F));
    Send(CH2M_SETYRANGE, W(&low), L(&high));
    EXPECT_EQ(Ends(CH2M_GETYRANGE), std::pair(-5.0F, 9.0F));
    EXPECT_EQ(told, (std::vector<ToldOf2D>{{kChart2DXRangeChanged, nullptr, 0}}));
    series->addPoint({900.0F, 0.0F});
    AddSeries();
    series->clear();
    EXPECT_EQ(Ends(CH2M_GETXRANGE), std::pair(-100.0F, 100.0F)) << "of what is left";
}

TEST_F(Chart2DTest, TextsAreNeverReadOrWrittenBeyondTheirRoom) {
    const EdgeOfMemory edge;
    char text[80];
    for (const UINT set : {CH2M_SETXTITLE, CH2M_SETYTITLE}) {
        const UINT get = set + 1;
        EXPECT_EQ(Send(get, W(text), 3), 6);
        EXPECT_EQ(std::string(text), set == CH2M_SETXTITLE ? "X " : "Y ");
        const auto look = TestBitmap(window).Pixels();
        EXPECT_EQ(Send(set, W(edge.Last(40)), 1000), 0);
        Send(set, W(edge.Last(40)), -1);
        EXPECT_EQ(Send(get, W(text), sizeof text), 40);
        EXPECT_EQ(text, std::string(40, 'x'));
        Send(CH2M_REPAINT);
        EXPECT_NE(TestBitmap(window).Pixels(), look) << "it is shown";
        Send(set, W("ab\0cd"), 5);
        EXPECT_EQ(Send(get, 0, 9), 2);
        Send(set, 0, 5);
        EXPECT_EQ(Send(get, W(text), 0), 0);
    }
    const std::string whole(60, 'x');
    Send(CH2M_SETSUBTITLE, 0, L(edge.Last(60)));
    EXPECT_EQ(Send(CH2M_GETSUBTITLE, 0, L(edge.Last(60))), 60);
    EXPECT_EQ(std::string(edge.Last(60), 60), whole);
    std::memset(text, '?', sizeof text);
    Send(CH2M_GETSUBTITLE, 0, L(text));
    EXPECT_EQ(std::string(text, 61), whole + "?") << "no more than 60 bytes";
    Send(CH2M_SETSUBTITLE, 0, L("sub"));
    EXPECT_EQ(Send(CH2M_GETSUBTITLE, 0, L(text)), 3);
    EXPECT_STREQ(text, "sub");
    TickBlock tick{0, 0.0F, edge.Last(40), 1000};
    EXPECT_EQ(Send(CH2M_SETXTICK, 0, L(&tick)), 1);
    tick.index = 11;
    EXPECT_EQ(Send(CH2M_SETXTICK, 0, L(&tick)), 0);
    EXPECT_EQ(Send(CH2M_SETYTICK, 0, L(&tick)), 1) << "one more than on X";
    EXPECT_EQ(TextOfWindow(window), "2D Chart");
    Send(CH2M_SETTITLE, 0, L(edge.Last(100)));
    EXPECT_EQ(TextOfWindow(window), std::string(100, 'x'));
    Send(WM_SETTEXT, 0, L(std::string(150, 'w').c_str()));
    EXPECT_EQ(TextOfWindow(window), std::string(100, 'w'));
}

}  // namespace
}  // namespace corvex
