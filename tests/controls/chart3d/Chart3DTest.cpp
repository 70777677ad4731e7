#include <gtest/gtest.h>

#include "tests/controls/chart3d/Chart3DWindowTest.h"

namespace corvex {
namespace {

TEST_F(Chart3DTest, AnswersEachMessage) {
    const auto add = [&](int index) { return Send(CH3M_ADDPLOT, At(index), FALSE); };
    const LPARAM first = add(0), last = add(99);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam, result;
    } cases[] = {
        {CH3M_GETSTYLE, 0, 0, 0x461},
        {CH3M_CLEARSTYLE, 0x61, TRUE, 0},
        {CH3M_GETSTYLE, 0, 0, 0x400},
        {CH3M_SETSTYLE, 0x4000, 0, 0},
        {CH3M_GETSTYLE, 0, 0, 0x4400},
        {CH3M_SETSTYLE, 0, 0, 0},
        {CH3M_GETSTYLE, 0, 0, 0},
        {CH3M_REPAINT, 0, 0, 0},
        {CH3M_GETPLOTCOUNT, 0, 0, 3},
        {CH3M_GETPLOT, 0, 0, first},
        {CH3M_GETPLOT, 1, 0, L(plot)},
        {CH3M_GETPLOT, 2, 0, last},
        {CH3M_GETPLOT, 3, 0, 0},
        {CH3M_GETPLOT, static_cast<WPARAM>(-1), 0, 0},
        {CH3M_DELETEPLOT, static_cast<WPARAM>(first), TRUE, 1},
        {CH3M_DELETEPLOT, static_cast<WPARAM>(first), TRUE, 0},
        {CH3M_DELETEPLOT, 0, TRUE, 0},
        {CH3M_GETPLOTCOUNT, 0, 0, 2},
        {CH3M_GETCOLOR, 0, 0, 0xFFFFFF},
        {CH3M_SETCOLOR, 17, 0x123456, 0},
        {CH3M_GETCOLOR, 17, 0, 0x123456},
        {CH3M_SETCOLOR, 12, 0x123456, 0},
        {CH3M_GETCOLOR, 12, 0, 0},
        {CH3M_GETXTICKCOUNT, 0, 0, 0},
        {CH3M_SETXTICKCOUNT, 0, 3, 0},
        {CH3M_SETDEPTHTICKCOUNT, 0, 4, 0},
        {CH3M_SETVERTTICKCOUNT, 0, 5, 0},
        {CH3M_SETVERTTICKCOUNT, 0, -1, 0},
        {CH3M_GETXTICKCOUNT, 0, 0, 3},
        {CH3M_GETDEPTHTICKCOUNT, 0, 0, 4},
        {CH3M_GETVERTTICKCOUNT, 0, 0, 5},
        {CH3M_SETXTICK, 0, 0, 0},
        {CH3M_GETXTICK, 0, 0, 0},
        {CH3M_SETSUBTITLE, 0, 0, 0},
        {CH3M_SETSUBTITLE, 0, L("under"), 0},
        {CH3M_SETLABELCALLBACK, 0, 0, 0},
        {WM_GETDLGCODE, 0, 0, 0x85},
        {WM_ERASEBKGND, 0, 0, 1},
        {WM_MOUSEACTIVATE, 0, 0, 1},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Send(one.message, one.wParam, one.lParam), one.result) << one.message << " " << one.wParam;
    EXPECT_EQ(::GetFocus(), window);
    EXPECT_EQ(told, std::vector<ToldOfChart>{});
}

TEST_F(Chart3DTest, NumbersComeAndGoByPointers) {
    float low = 1.5F, high = 2.5F, three[] = {1.0F, 2.0F, 3.0F};
    for (const UINT set : {CH3M_SETXRANGE, CH3M_SETDEPTHRANGE, CH3M_SETVERTRANGE, CH3M_SETXLIMITS, CH3M_SETDEPTHLIMITS,
                           CH3M_SETVERTLIMITS}) {
        EXPECT_EQ(Floats(set + 1, false), (std::vector{0.0F, 255.0F, -77.0F}));
        Send(set, W(&low), 0);
        EXPECT_EQ(Floats(set + 1, false), (std::vector{low, 255.0F, -77.0F}));
        Send(set, 0, L(&high));
        EXPECT_EQ(Floats(set + 1, false), (std::vector{low, high, -77.0F}));
        Send(set + 1);
        low += 1.0F;  // so that no two hold the same
        high += 1.0F;
    }
    EXPECT_EQ(Floats(CH3M_GETXRANGE, false)[0], 1.5F);
    for (const UINT set : {CH3M_SETROTATION, CH3M_SETTRANSLATION}) {
        EXPECT_EQ(shown.PaintsIn([&] { Send(set, W(three), TRUE); }), 1);
        EXPECT_EQ(shown.PaintsIn([&] { Send(set, W(three), FALSE); }), 0);
        Send(set, 0, TRUE);
        EXPECT_EQ(Floats(set + 1, true), (std::vector{three[0], 2.0F, 3.0F}));
        Send(set + 1);
        three[0] = 9.0F;
    }
    EXPECT_EQ(Floats(CH3M_GETROTATION, true)[0], 1.0F);
    EXPECT_EQ(shown.PaintsIn([&] { Send(CH3M_SETSCALE, W(&high), TRUE); }), 1);
    Send(CH3M_SETSCALE, 0, TRUE);
    EXPECT_EQ(Floats(CH3M_GETSCALE, true), (std::vector{high, -77.0F, -77.0F}));
    Send(CH3M_SETBOXSIZE, 0, L(&high));
    Send(CH3M_SETBOXSIZE, 0, 0);
    float size = 0.0F;
    Send(CH3M_GETBOXSIZE, 0, L(&size));
    EXPECT_EQ(size, high);
    EXPECT_FLOAT_EQ(Floats(CH3M_GETTRANSLATION, true)[0], (300.0F - high) / 2.0F) << "in the middle again";
    Send(CH3M_SETSTYLE, kChart3DXFollows, 0);
    Send(CH3M_SETXRANGE, W(three), L(three));
    EXPECT_EQ(Floats(CH3M_GETXRANGE, false), (std::vector{50.0F, 100.0F, -77.0F}));
    for (const UINT get : {CH3M_GETBOXSIZE, CH3M_GETSCALE})
        EXPECT_EQ(Send(get), 0);
}

TEST_F(Chart3DTest, TicksAreCopied) {
    char text[64] = "untouched";
    const std::string given(50, 'x');
    Chart3DTick tick{1, 4.5F, const_cast<char*>("label"), 3};
    for (UINT axis = 0; axis < 3; ++axis) {
        Send(CH3M_SETXTICKCOUNT + axis, 0, 2);
        tick.value += 1.0F;
        EXPECT_EQ(Send(CH3M_SETXTICK + axis, 0, L(&tick)), 1);
    }
    Chart3DTick got{9, -1.0F, text, sizeof text};
    EXPECT_EQ(Send(CH3M_GETXTICK, 2, L(&got)), 0);
    EXPECT_EQ(got.value, -1.0F);
    EXPECT_STREQ(text, "untouched");
    for (UINT axis = 0; axis < 3; ++axis) {
        EXPECT_EQ(Send(CH3M_GETXTICK + axis, 1, L(&got)), 1);
        EXPECT_EQ(got.value, 5.5F + static_cast<float>(axis));
        EXPECT_STREQ(text, "lab");
        EXPECT_EQ(Send(CH3M_GETXTICK + axis, 0, L(&got)), 1);
        EXPECT_EQ(got.value, 0.0F);
        EXPECT_STREQ(text, "");
    }
    tick = {0, 1.0F, const_cast<char*>(given.data()), 50};
    Send(CH3M_SETXTICK, 0, L(&tick));
    Send(CH3M_GETXTICK, 0, L(&got));
    EXPECT_EQ(text, given.substr(0, 40));
    got.length = 3;
    Send(CH3M_GETXTICK, 0, L(&got));
    EXPECT_STREQ(text, "xx");
    got.length = 0;
    EXPECT_EQ(Send(CH3M_GETXTICK, 0, L(&got)), 1);
    EXPECT_STREQ(text, "xx");
    got.text = tick.text = nullptr;
    EXPECT_EQ(Send(CH3M_SETXTICK, 0, L(&tick)), 1);
    EXPECT_EQ(Send(CH3M_GETXTICK, 0, L(&got)), 1);
    tick.index = 2;
    EXPECT_EQ(Send(CH3M_SETXTICK, 0, L(&tick)), 0);
}

TEST_F(Chart3DTest, TextsAreNeverReadBeyondTheirRoom) {
    const EdgeOfMemory edge;
    const auto last = [&](std::size_t length) { return edge.Last(length); };
    const float size = 60.0F, angles[] = {-0.5F, 0.707F, 0.0F};
    Send(CH3M_SETBOXSIZE, 0, L(&size));
    Send(CH3M_SETROTATION, W(angles), TRUE);
    for (const UINT message : {CH3M_SETXTITLE, CH3M_SETDEPTHTITLE, CH3M_SETVERTTITLE}) {
        const auto look = TestBitmap(window).Pixels();
        Send(message, W(last(40)), 1000);
        Send(message, W(last(40)), -1);
        EXPECT_EQ(shown.PaintsIn([&] { Send(CH3M_REPAINT); }), 1);
        EXPECT_NE(TestBitmap(window).Pixels(), look) << "it is shown";
        Send(message, W(last(0)), 0);
        Send(message, 0, 5);
    }
    Send(CH3M_SETSUBTITLE, 0, L(last(60)));
    EXPECT_EQ(TextOfWindow(window), "3D Chart");
    EXPECT_EQ(TextOfWindow(ShownControl(kChart3DClass, 9, 9, 7, "Spark").Window()), "Spark");
    const auto look = TestBitmap(window).Pixels();
    Send(CH3M_SETTITLE, 0, L(last(100)));
    EXPECT_EQ(TextOfWindow(window), std::string(100, 'x'));
    Send(CH3M_REPAINT);
    EXPECT_NE(TestBitmap(window).Pixels(), look);
}

}  // namespace
}  // namespace corvex
