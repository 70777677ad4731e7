#include <gtest/gtest.h>

#include "controls/richstatic/RichStaticPaint.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

constexpr RECT kArea{0, 0, 120, 21};

RichStaticModel Label(std::uint32_t textColour, std::uint32_t backColour, std::uint32_t borderColour) {
    RichStaticModel model;
    model.label.SetText("Ready");
    model.label.SetTextColour(textColour);
    model.label.SetBackColour(backColour);
    model.borderColour = borderColour;
    return model;
}

Figures Painted(const RichStaticModel& model) {
    return FiguresOf([&](HDC dc) { PaintRichStatic(dc, kArea, model); });
}

TEST(RichStaticPaintTest, FillsTheGroundWithinABorderOfOnePixelOrWithoutOne) {
    EXPECT_EQ(Painted(Label(0x0000FF, 0x00FF00, 0xFF0000)),
              (Figures{"rectangle 0,0,120,21 pen 0 1 ff0000 brush 00ff00", CentredText("Ready", 120, 21, 0x0000FF)}));
    EXPECT_EQ(Painted(Label(0, 0x00FF00, kNoColour)),
              (Figures{"fill 0,0,120,21 brush 00ff00", CentredText("Ready", 120, 21, 0)}));
}

TEST(RichStaticPaintTest, TextWithoutAColourIsDrawnInThatOfTheGround) {
    EXPECT_EQ(Painted(Label(kNoColour, 0x00FF00, 0)).at(1), CentredText("Ready", 120, 21, 0x00FF00));
}

TEST(RichStaticPaintTest, GroundWithoutAColourIsThatOfButtonsAndTheBorderRunsAlongAllEdges) {
    const TestBitmap bitmap(120, 21, 0xFF00FF);
    RichStaticModel model;
    model.borderColour = 0x0000FF;
    PaintRichStatic(bitmap.Dc(), kArea, model);
    for (const RECT& edge : {RECT{0, 0, 120, 1}, RECT{0, 20, 120, 21}, RECT{0, 0, 1, 21}, RECT{119, 0, 120, 21}})
        EXPECT_EQ(bitmap.ColoursIn(edge), Colours{0x0000FFu});
    EXPECT_EQ(bitmap.ColoursIn({1, 1, 119, 20}), Colours{::GetSysColor(COLOR_BTNFACE)});
}

}  // namespace
}  // namespace corvex
