#include <gtest/gtest.h>

#include "controls/scope/ScopePaint.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

Figures FrameOf(ScopeModel& scope, int width, int height) {
    scope.SetClient(width, height);
    const ScopeFrame frame = scope.LayOut();
    return FiguresOf([&](HDC dc) { PaintScopeFrame(dc, frame, scope, ScopeFonts()); });
}

// Figures differ from size to size in these numbers alone.
struct FramePlaces {
    int left, right, bottom, quarter, half, threeQuarters, middle, yLabel;
};

Figures Expected(int width, int height, const FramePlaces& p, const char* last) {
    const auto line = [&](int x0, int y0, int x1, int y1) {
        return Printed("line %d,%d to %d,%d pen 0 0 ffff00", x0, y0, x1, y1);
    };
    const auto text = [](int x, int y, unsigned align, const char* what) {
        return Printed("text %d,%d align %u font Arial 14 300 2 32 colour ffff00 transparent: %s", x, y, align, what);
    };
    return {Printed("fill 0,0,%d,%d brush 000000", width, height),
            line(p.left, 10, p.right + 1, 10),
            line(p.right + 1, 10, p.right + 1, p.bottom + 1),
            line(p.right + 1, p.bottom + 1, p.left, p.bottom + 1),
            line(p.left, p.bottom + 1, p.left, 10),
            line(p.left, p.quarter, p.right, p.quarter),
            line(p.left, p.half, p.right, p.half),
            line(p.left, p.threeQuarters, p.right, p.threeQuarters),
            text(p.left - 4, 10, TA_RIGHT, "10.00"),
            text(p.left - 4, p.bottom, TA_RIGHT | TA_BASELINE, "-10.00"),
            text(p.left, p.bottom + 4, TA_LEFT, "0"),
            text(p.right, p.bottom + 4, TA_RIGHT, last),
            text(p.middle, p.bottom + 4, TA_CENTER, "X"),
            text(14, p.yLabel, TA_CENTER, "Y")};
}

TEST(ScopePaintTest, FrameHasOutlineMidlinesNumbersAndLabels) {
    ScopeModel scope;
    scope.xLabel = "X";
    scope.yLabel = "Y";
    EXPECT_EQ(FrameOf(scope, 300, 200), Expected(300, 200, {42, 290, 175, 51, 92, 133, 166, 92}, "82"));
    EXPECT_EQ(FrameOf(scope, 700, 420), Expected(700, 420, {42, 690, 395, 106, 202, 298, 366, 202}, "216"));
    scope.hasMidlines = false;
    scope.isHexadecimal = true;
    scope.textColour = 0x0000FF;
    const Figures plain = FrameOf(scope, 300, 200);
    EXPECT_EQ(FiguresOfKind(plain, "line").size(), 4U);
    EXPECT_EQ(FiguresOfKind(plain, "text")[3],
              "text 290,179 align 2 font Arial 14 300 2 32 colour 0000ff transparent: 52");
}

TEST(ScopePaintTest, YLabelRunsUpwardWhereThereIsRoomBetweenTheNumbers) {
    ScopeModel scope;
    scope.yLabel = "Millivolts of the sensor";
    EXPECT_EQ(FiguresOfKind(FrameOf(scope, 300, 240), "text").size(), 6U);
    EXPECT_EQ(FiguresOfKind(FrameOf(scope, 300, 120), "text").size(), 5U);
    LOGFONTA font{};
    const ScopeFonts fonts;
    ASSERT_NE(::GetObjectA(fonts.TurnedLabel(), sizeof font, &font), 0);
    EXPECT_EQ(font.lfEscapement, 900);
    EXPECT_EQ(font.lfWeight, 300);
}

TEST(ScopePaintTest, MessageIsRedInTheCorner) {
    ScopeModel scope;
    scope.SetClient(300, 200);
    const auto paint = [&](HDC dc) { PaintScopeMessage(dc, scope, ScopeFonts()); };
    EXPECT_TRUE(FiguresOf(paint).empty());
    scope.message = "No data";
    EXPECT_EQ(FiguresOf(paint),
              Figures{"text 260,16 align 2 font Arial 14 600 2 32 colour 0000ff transparent: No data"});
}

// A trace of its own on a bitmap, in white on black.
class ScopeTraceTest : public ::testing::Test {
protected:
    void Add(double value, std::uint32_t step) {
        scope.SetStep(step);
        trace.Draw(*scope.AddSample(value), Ground(), pen.Get());
    }
    HBRUSH Ground() const { return ground.Get(); }
    bool IsLit(int x, int y) const { return bitmap.At(x, y) == 0xFFFFFF; }
    int LitIn(const RECT& part) const {
        int lit = 0;
        for (const COLORREF pixel : bitmap.Pixels(part))
            lit += pixel == 0xFFFFFF ? 1 : 0;
        return lit;
    }
    static ScopeFrame Lay(ScopeModel& scope) {
        scope.SetClient(300, 200);
        return scope.LayOut();
    }

    ScopeModel scope;
    const TestBitmap bitmap{300, 200, 0xFF00FF};
    const OwnedBrush ground{::CreateSolidBrush(0)};
    const OwnedPen pen{::CreatePen(PS_SOLID, 0, 0xFFFFFF)};
    const ScopeTrace trace{bitmap.Dc(), Lay(scope), ground.Get()};
};

TEST_F(ScopeTraceTest, BeginsBlankOverTheWholeClient) {
    EXPECT_EQ(bitmap.ColoursIn({0, 0, 300, 200}), Colours{0});
}

TEST_F(ScopeTraceTest, EachSampleMovesTheOthersOneStepToTheLeft) {
    Add(0.0, 4);
    EXPECT_EQ(LitIn({0, 0, 300, 200}), 4) << "flat, from right - 6 to right - 2";
    EXPECT_TRUE(IsLit(284, 93));
    EXPECT_TRUE(IsLit(287, 93));
    Add(0.0, 4);
    EXPECT_TRUE(IsLit(280, 93));
    EXPECT_EQ(LitIn({0, 0, 300, 200}), 8);
    for (int i = 0; i < 200; ++i)
        Add(0.0, 4);
    EXPECT_EQ(LitIn({42, 93, 300, 94}), 288 - 42) << "to the left edge and not beyond";
    EXPECT_EQ(LitIn({0, 0, 300, 200}), 288 - 42);
}

TEST_F(ScopeTraceTest, IsCutAtTheEdgesOfThePlot) {
    for (const double value : {0.0, 15.0, -15.0, 1e300, -1e300, 10.0, -10.0})
        Add(value, 12);
    EXPECT_GT(LitIn({42, 10, 291, 176}), 100);
    EXPECT_EQ(LitIn({0, 0, 300, 10}), 0);
    EXPECT_EQ(LitIn({0, 176, 300, 200}), 0);
    EXPECT_EQ(LitIn({0, 0, 42, 200}), 0);
    EXPECT_EQ(LitIn({291, 0, 300, 200}), 0);
    Add(10.0, 12);
    Add(10.0, 12);
    EXPECT_TRUE(IsLit(280, 10)) << "on the edge is inside";
    Add(-10.0, 12);
    Add(-10.0, 12);
    EXPECT_TRUE(IsLit(280, 175));
    Add(0.0, 12);
    Add(0.0, 12);
    EXPECT_EQ(LitIn({42, 175, 291, 176}), 0) << "what is in the strip goes, on the edge too";
}

TEST_F(ScopeTraceTest, StepsWiderThanThePlotLeaveItBlankBesides) {
    for (const std::uint32_t step : {200U, 248U, 1000U, 0xFFFFFFFFU})
        Add(0.0, step);
    EXPECT_EQ(LitIn({0, 0, 42, 200}), 0);
    EXPECT_EQ(LitIn({42, 94, 291, 176}), 0);
}

TEST_F(ScopeTraceTest, AStillLineBeginsAtItsFirstPoint) {
    trace.Draw({{50, 60}, {60, 60}, {60, 90}}, pen.Get());
    EXPECT_EQ(LitIn({0, 0, 300, 200}), 40);
    EXPECT_TRUE(IsLit(50, 60));
    trace.Draw(std::vector<ScopePoint>(), pen.Get());
    EXPECT_EQ(LitIn({0, 0, 300, 200}), 40);
}

TEST_F(ScopeTraceTest, ItsEndLetsTheWholeBitmapBeDrawnOn) {
    const TestBitmap other(50, 50, 0);
    { const ScopeTrace brief(other.Dc(), ScopeFrame{{0, 0, 50, 50}, {20, 20, 30, 30}, {}, {}}, Ground()); }
    ::SetPixel(other.Dc(), 2, 2, 0x00FF00);
    EXPECT_EQ(other.At(2, 2), 0x00FF00U);
}

}  // namespace
}  // namespace corvex
