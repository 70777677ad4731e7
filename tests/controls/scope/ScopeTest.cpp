#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "controls/scope/Scope.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

class ScopeTest : public ::testing::Test {
protected:
    void Add(double value) const { scope.Send(SCM_ADDSAMPLE, 0, L(&value)); }
    void Range(double maximum, double minimum) const { scope.Send(SCM_SETYRANGE, W(&maximum), L(&minimum)); }
    void Text(UINT message, const char* text, WPARAM paints = 0) const { scope.Send(message, paints, L(text)); }
    void Still(const void* data, std::size_t size) const {
        scope.Send(SCM_SETLIVE, 0, 0);
        scope.Send(SCM_SETDATA, W(data), static_cast<LPARAM>(size));
        scope.Send(SCM_REDRAW);
    }
    std::vector<COLORREF> Pixels() const {
        scope.Repaint();
        return TestBitmap(scope.Window()).Pixels();
    }
    COLORREF At(int x, int y) const {
        scope.Repaint();
        return PixelOf(scope.Window(), x, y);
    }
    // Only by what is due of its own.
    bool IsDue() const { return ::GetUpdateRect(scope.Window(), nullptr, FALSE) != FALSE; }
    void Validate() const { ::ValidateRect(scope.Window(), nullptr); }

    const bool registered = Scope::Register(::GetModuleHandleA(nullptr));
    ShownControl scope{kScopeClass, 300, 200};
};

TEST_F(ScopeTest, AnswersWhatItWasTold) {
    EXPECT_EQ(scope.Send(SCM_GETSTEP), 3);
    EXPECT_EQ(scope.Send(SCM_GETVISIBLESAMPLES), 82);
    scope.Send(SCM_SETSTEP, 0, 0);
    EXPECT_EQ(scope.Send(SCM_GETSTEP), 1);
    EXPECT_EQ(scope.Send(SCM_GETVISIBLESAMPLES), 248);
    scope.Send(SCM_SETUSERVALUE, 0, 0x1234567890LL);
    EXPECT_EQ(scope.Send(SCM_GETUSERVALUE), 0x34567890);
    int data = 0;
    scope.Send(SCM_SETDATA, W(&data), sizeof data);
    EXPECT_EQ(scope.Send(SCM_GETDATA), L(&data));
    scope.Send(SCM_SETDATA, 0, 0);
    EXPECT_EQ(scope.Send(SCM_GETDATA), 0);
}

TEST_F(ScopeTest, ASampleIsDueAtOnceAndSeenWithTheNextPaint) {
    Validate();
    Add(10.0);
    EXPECT_TRUE(IsDue());
    EXPECT_EQ(At(287, 10), 0xFFFFFFU);
    Validate();
    scope.Send(SCM_ADDSAMPLE, 0, 0);
    EXPECT_FALSE(IsDue()) << "null is none";
}

TEST_F(ScopeTest, WhatMakesANewFrameDoesSoAtOnce) {
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        bool isNew;
    } cases[] = {
        {SCM_SETXLABEL, 0, L("Samples"), true},
        {SCM_SETYLABEL, 0, L("Units"), true},
        {SCM_SETTEXTCOLOR, 0, 0x0000FF, true},
        {SCM_SETTRACECOLOR, 0, 0x00FF00, true},
        {SCM_SETBACKCOLOR, 0, 0x400000, true},
        {SCM_REDRAW, 0, 0, true},
        {SCM_SETMIDLINES, 0, 0, false},
        {SCM_SETMIDLINES, 0, 1, true},
        {SCM_SETHEX, 1, 0, false},
        {SCM_SETHEX, 1, 1, true},
        {SCM_SETDECIMALS, 0, 4, false},
        {SCM_SETSTART, 0, 1000, false},
        {SCM_SETSAMPLEWIDTH, 0, 2, false},
        {SCM_SETSTEP, 0, 2, false},
        {SCM_SETLIVE, 0, 0, false},
        {SCM_SETSTEP, 0, 5, true},  // in static mode
    };
    for (const auto& c : cases) {
        Pixels();
        scope.Send(c.message, c.wParam, c.lParam);
        EXPECT_EQ(IsDue(), c.isNew) << c.message;
    }
}

TEST_F(ScopeTest, EverySettingIsSeenInTheNextFrame) {
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    } cases[] = {
        {SCM_SETXLABEL, 0, L("Samples")},
        {SCM_SETYLABEL, 0, L("Units")},
        {SCM_SETTEXTCOLOR, 0, 0x0000FF},
        {SCM_SETBACKCOLOR, 0, 0x400000},
        {SCM_SETMIDLINES, 0, 1},
        {SCM_SETSTART, 0, 0x1F},
        {SCM_SETHEX, 1, 1},
        {SCM_SETDECIMALS, 0, 4},
        {SCM_SETSTEP, 0, 2},
    };
    for (const auto& c : cases) {
        const auto before = Pixels();
        scope.Send(c.message, c.wParam, c.lParam);
        scope.Send(SCM_REDRAW);
        EXPECT_NE(Pixels(), before) << c.message;
    }
}

TEST_F(ScopeTest, TextsEndAtTheirLengthAndNullIsNone) {
    const auto before = Pixels();
    const std::string label(60, 'i');
    Text(SCM_SETXLABEL, label.substr(0, 50).c_str());
    const auto whole = Pixels();
    EXPECT_NE(whole, before);
    Text(SCM_SETXLABEL, label.c_str());
    EXPECT_EQ(Pixels(), whole);
    Text(SCM_SETXLABEL, nullptr);
    EXPECT_EQ(Pixels(), before);
    Validate();
    Text(SCM_SETMESSAGE, "No data");
    EXPECT_FALSE(IsDue());
    EXPECT_NE(Pixels(), before);
    EXPECT_TRUE(scope.Shows(0x0000FF));
    Validate();
    Text(SCM_SETMESSAGE, nullptr, 1);
    EXPECT_TRUE(IsDue());
    EXPECT_EQ(Pixels(), before);
}

TEST_F(ScopeTest, ANewRangeDrawsTheHistoryAndAnyOtherFrameBeginsWithAnEmptyTrace) {
    for (const double value : {5.0, 5.0, 5.0})
        Add(value);
    EXPECT_EQ(At(284, 52), 0xFFFFFFU);
    Range(10.0, 0.0);
    EXPECT_EQ(At(284, 52), 0U);
    EXPECT_EQ(At(284, 93), 0xFFFFFFU);
    scope.Send(SCM_REDRAW);
    EXPECT_EQ(At(284, 93), 0U);
    EXPECT_FALSE(scope.Shows(0xFFFFFF));
    Validate();
    scope.Send(SCM_SETYRANGE, 0, 0);
    EXPECT_FALSE(IsDue()) << "null is none";
    Range(4.0, 4.0);
    EXPECT_EQ(At(284, 93), 0xFFFFFFU);
}

TEST_F(ScopeTest, AColourOfTheTraceIsThatOfTheSamplesToCome) {
    scope.Send(SCM_SETTRACECOLOR, 0, 0x00FF00);
    Add(1.0);
    scope.Repaint();
    EXPECT_TRUE(scope.Shows(0x00FF00));
    EXPECT_FALSE(scope.Shows(0xFFFFFF));
}

// On another ground than black the frame and the trace are combined bit by bit.
TEST_F(ScopeTest, TheFrameShowsThroughTheTrace) {
    scope.Send(SCM_SETBACKCOLOR, 0, 0x000040);
    scope.Send(SCM_SETTEXTCOLOR, 0, 0xFFFF00);
    scope.Send(SCM_SETTRACECOLOR, 0, 0x00FF00);
    EXPECT_EQ(At(100, 20), 0x000040U);
    EXPECT_EQ(At(100, 10), 0xFFFF40U) << "the outline through the trace's ground";
    Add(0.0);
    EXPECT_EQ(At(287, 93), 0x00FF40U) << "the trace over the frame's ground";
}

TEST_F(ScopeTest, StaticDataAreReadWithEachFrameAndNeverWithAPaint) {
    std::array<std::uint8_t, 200> data{};
    Range(10.0, 0.0);
    data.fill(8);
    Still(data.data(), data.size());
    EXPECT_EQ(At(200, 43), 0xFFFFFFU);
    data.fill(4);
    EXPECT_EQ(At(200, 43), 0xFFFFFFU) << "a paint reads nothing";
    const auto isRead = [&](const char* by) {
        EXPECT_EQ(At(200, 109), 0xFFFFFFU) << by;
        data.fill(8);
        scope.Send(SCM_REDRAW);
        data.fill(4);
    };
    scope.Send(SCM_REDRAW);
    isRead("redraw");
    Range(10.0, 0.0);
    isRead("range");
    scope.Send(SCM_SETSTEP, 0, 2);
    isRead("step");
    Text(SCM_SETYLABEL, "");
    isRead("label");
    scope.Resize(310, 200);
    isRead("size");
    Add(1.0);
    EXPECT_EQ(At(200, 43), 0xFFFFFFU) << "a sample is remembered only";
    scope.Send(SCM_SETDATA, 0, 0);
    scope.Send(SCM_REDRAW);
    EXPECT_EQ(At(200, 175), 0xFFFFFFU) << "zeros";
}

TEST_F(ScopeTest, AWindowWiderThanTheDataHasZerosAfterThem) {
    const std::uint8_t data[] = {9, 9, 9};
    Range(10.0, 0.0);
    Still(data, sizeof data);
    EXPECT_EQ(At(43, 27), 0xFFFFFFU);
    EXPECT_EQ(At(60, 175), 0xFFFFFFU);
    EXPECT_EQ(At(287, 175), 0xFFFFFFU);
    const std::uint16_t wide[] = {4, 4, 4};
    scope.Send(SCM_SETSAMPLEWIDTH, 0, 2);
    Still(wide, sizeof wide);
    EXPECT_EQ(At(43, 109), 0xFFFFFFU);
    EXPECT_EQ(At(47, 109), 0xFFFFFFU) << "the second is one step further";
}

TEST_F(ScopeTest, ASmallerWindowKeepsTheNewestSamplesForTheNextRange) {
    for (int i = 0; i < 82; ++i)
        Add(i < 70 ? 10.0 : 5.0);
    scope.Resize(90, 200);  // twelve samples
    Range(20.0, 0.0);
    EXPECT_EQ(At(60, 134), 0xFFFFFFU);
    EXPECT_EQ(At(60, 93), 0U);
    EXPECT_EQ(scope.Send(SCM_GETVISIBLESAMPLES), 12);
}

TEST_F(ScopeTest, AnySizeIsSurvived) {
    const double value = 3.0;
    for (const SIZE& size : {SIZE{0, 0}, SIZE{1, 1}, SIZE{0, 300}, SIZE{43, 36}, SIZE{4000, 4000}, SIZE{53, 200}}) {
        scope.Resize(size.cx, size.cy);
        Add(value);
        Range(value, -value);
        Still(&value, sizeof value);
        scope.Repaint();
        scope.Send(SCM_SETLIVE, 0, 1);
    }
    scope.Resize(300, 200);
    Add(value);
    EXPECT_EQ(At(287, 10), 0xFFFFFFU);
}

TEST_F(ScopeTest, InUse) {
    double value = 0.0;
    for (const SIZE& size : {SIZE{220, 140}, SIZE{460, 260}, SIZE{1000, 500}}) {
        scope.Resize(size.cx, size.cy);
        Text(SCM_SETXLABEL, "Samples");
        Text(SCM_SETYLABEL, "Oxygen sensor, mV");
        Range(1000.0, 0.0);
        for (int i = 0; i < 400; ++i) {
            value = i % 50 < 25 ? 150.0 + 28.0 * (i % 25) : 850.0 - 28.0 * (i % 25);
            Add(value);
        }
        SavePicture(scope.Window(), "scope-" + std::to_string(size.cx));
    }
    EXPECT_TRUE(scope.Shows(0xFFFFFF));
}

}  // namespace
}  // namespace corvex
