#include <gtest/gtest.h>

#include "controls/richstatic/RichStaticPaint.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

using Lines = std::vector<std::string>;

constexpr RECT kArea{0, 0, 120, 21};

Lines Painted(const RichStaticModel& model) {
    return Recorded([&](HDC dc) { PaintRichStatic(dc, kArea, model); });
}

RichStaticModel Labelled(const char* text) {
    RichStaticModel model;
    model.label.SetText(text);
    return model;
}

TEST(RichStaticPaintTest, FillsTheGroundWithinABorderOfOnePixel) {
    RichStaticModel model = Labelled("Ready");
    model.label.SetTextColour(0x0000FF);
    model.label.SetBackColour(0x00FF00);
    model.borderColour = 0xFF0000;
    EXPECT_EQ(Painted(model), (Lines{"brush 00ff00", "pen 0 1 ff0000", "rectangle 0,0,120,21", "text colour 0000ff",
                                     "transparent", CentredText("Ready", 120, 21)}));
}

TEST(RichStaticPaintTest, FillsTheGroundAloneWithoutABorder) {
    RichStaticModel model = Labelled("Ready");
    model.label.SetBackColour(0x00FF00);
    model.borderColour = kNoColour;
    EXPECT_EQ(Painted(model), (Lines{"brush 00ff00", "fill 0,0,120,21", "text colour 000000", "transparent",
                                     CentredText("Ready", 120, 21)}));
}

TEST(RichStaticPaintTest, GroundWithoutAColourIsThatOfButtons) {
    const TestBitmap bitmap(120, 21, 0xFF00FF);
    PaintRichStatic(bitmap.Dc(), kArea, RichStaticModel());
    EXPECT_EQ(bitmap.At(60, 10), ::GetSysColor(COLOR_BTNFACE));
}

TEST(RichStaticPaintTest, BorderRunsAlongAllFourEdges) {
    const TestBitmap bitmap(120, 21, 0xFF00FF);
    RichStaticModel model;
    model.label.SetBackColour(0x00FF00);
    model.borderColour = 0x0000FF;
    PaintRichStatic(bitmap.Dc(), kArea, model);
    const std::set<COLORREF> border{0x0000FFu}, ground{0x00FF00u};
    EXPECT_EQ(bitmap.ColoursIn(0, 0, 120, 1), border);
    EXPECT_EQ(bitmap.ColoursIn(0, 20, 120, 21), border);
    EXPECT_EQ(bitmap.ColoursIn(0, 0, 1, 21), border);
    EXPECT_EQ(bitmap.ColoursIn(119, 0, 120, 21), border);
    EXPECT_EQ(bitmap.ColoursIn(1, 1, 119, 20), ground);
}

TEST(RichStaticPaintTest, TextWithoutAColourIsDrawnInThatOfTheGround) {
    RichStaticModel model = Labelled("Ready");
    model.label.SetTextColour(kNoColour);
    model.label.SetBackColour(0x00FF00);
    EXPECT_EQ(PlacesOf(Painted(model), "text colour 00ff00").size(), 1u);
}

TEST(RichStaticPaintTest, LeavesNoObjectBehind) {
    const std::size_t before = LiveGdiObjects();
    const TestBitmap bitmap(120, 21, 0);
    const std::size_t within = LiveGdiObjects();
    for (int i = 0; i < 1000; ++i)
        PaintRichStatic(bitmap.Dc(), kArea, RichStaticModel());
    EXPECT_EQ(LiveGdiObjects(), within);
    EXPECT_EQ(before + 2, within);
}

}  // namespace
}  // namespace corvex
