#include <gtest/gtest.h>

#include "controls/textprogress/TextProgressPaint.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

constexpr RECT kArea{0, 0, 120, 21};
constexpr COLORREF kGround = 0xFFFFFF, kSetBar = 0x800000;

// A third of the way.
TextProgressModel Third(std::uint32_t textColour, bool vertical = false) {
    TextProgressModel model;
    model.maximum = 3;
    model.position = 1;
    model.vertical = vertical;
    model.barColour = kSetBar;
    model.label.SetText("MMMMMMMM");
    model.label.SetTextColour(textColour);
    model.label.SetBackColour(kGround);
    return model;
}

Figures Painted(const TextProgressModel& model) {
    return FiguresOf([&](HDC dc) { PaintTextProgress(dc, kArea, model); });
}

std::string Text(COLORREF colour) {
    return CentredText("MMMMMMMM", 120, 21, colour);
}

// In the pixels of a bitmap: texts there may be of two colours.
Colours PaintedColours(const TextProgressModel& model, const RECT& part) {
    const TestBitmap bitmap(120, 21, 0x010203);
    const OwnedFont font = MakeTestFont();
    const SelectGuard selected(bitmap.Dc(), font.Get());
    PaintTextProgress(bitmap.Dc(), kArea, model);
    return bitmap.ColoursIn(part);
}

TEST(TextProgressPaintTest, FillsRestAndBarAndDrawsTheTextOverBoth) {
    TextProgressModel model = Third(0x0000FF);
    EXPECT_EQ(Painted(model),
              (Figures{"fill 40,0,120,21 brush ffffff", "fill 0,0,40,21 brush 800000", Text(0x0000FF)}));
    model.vertical = true;
    EXPECT_EQ(Painted(model),
              (Figures{"fill 0,0,120,14 brush ffffff", "fill 0,14,120,21 brush 800000", Text(0x0000FF)}));
    model.position = 0;
    EXPECT_EQ(Painted(model), (Figures{"fill 0,0,120,21 brush ffffff", Text(0x0000FF)}));
    model.position = 4;
    EXPECT_EQ(Painted(model), (Figures{"fill 0,0,120,21 brush 800000", Text(0x0000FF)}));
}

TEST(TextProgressPaintTest, GroundWithoutAColourIsThatOfButtons) {
    TextProgressModel model = Third(0);
    model.label.SetBackColour(kNoColour);
    model.label.SetText("");
    EXPECT_EQ(PaintedColours(model, {40, 0, 120, 21}), Colours{::GetSysColor(COLOR_BTNFACE)});
}

TEST(TextProgressPaintTest, TwoTonesAreDrawnInTheGroundsColourAndThenOutsideTheBarInItsOwn) {
    EXPECT_EQ(FiguresOfKind(Painted(Third(kNoColour)), "text"), Figures{Text(kGround)});
    EXPECT_EQ(Painted(Third(kNoColour)).back(), "clip 40,0,120,21 " + Text(kSetBar));
}

TEST(TextProgressPaintTest, TwoTonesMeetAtTheEdgeOfTheBar) {
    const Colours both{kGround, kSetBar};
    for (const bool vertical : {false, true}) {
        TextProgressModel model = Third(kNoColour, vertical);
        const RECT bar = vertical ? RECT{0, 14, 120, 21} : RECT{0, 0, 40, 21};
        const RECT rest = vertical ? RECT{0, 0, 120, 14} : RECT{40, 0, 120, 21};
        EXPECT_EQ(PaintedColours(model, bar), both) << vertical;
        EXPECT_EQ(PaintedColours(model, rest), both) << vertical;
        model.label.SetText("");
        EXPECT_EQ(PaintedColours(model, bar), Colours{kSetBar}) << vertical;
        EXPECT_EQ(PaintedColours(model, rest), Colours{kGround}) << vertical;
        model = Third(kNoColour, vertical);
        model.position = 30;
        EXPECT_EQ(PaintedColours(model, kArea), both) << "one over a full bar";
    }
}

}  // namespace
}  // namespace corvex
