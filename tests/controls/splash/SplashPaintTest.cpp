#include <gtest/gtest.h>

#include "controls/splash/SplashPaint.h"
#include "tests/controls/window/FigureRecorder.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

SplashText Item(int id, const char* text, RECT place, COLORREF colour, OwnedFont font = OwnedFont()) {
    SplashText item;
    item.itemId = id;
    item.text = text;
    item.rectangle = place;
    item.colour = colour;
    item.font = std::move(font);
    return item;
}

TEST(SplashPaintTest, DrawsEachTextWhereItIsToBeginInItsColourAndFont) {
    SplashTexts texts;
    texts.Set(Item(1, "Build 1.0", {260, 111, 400, 130}, 0x0000FF));
    texts.Set(Item(2, "A&B", {5, 6, 100, 20}, 0x00FF00,
                   OwnedFont(::CreateFontA(21, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"))));
    const Figures painted = FiguresOf([&](HDC dc) { PaintSplashTexts(dc, texts); });
    ASSERT_EQ(painted.size(), 2u);
    EXPECT_TRUE(painted[0].starts_with("text 260,111 align 0 font Arial 13 600 ")) << painted[0];
    EXPECT_TRUE(painted[0].ends_with(" colour 0000ff transparent: Build 1.0")) << painted[0];
    EXPECT_EQ(painted[1], "text 5,6 align 0 font Arial 21 400 0 0 colour 00ff00 transparent: A&B");
}

TEST(SplashPaintTest, TextIsMeasuredSoThatARectangleTooSmallCutsNothing) {
    const auto coloursBeyond = [](const RECT& place) {
        const TestBitmap bitmap(100, 30, 0xFFFFFF);
        SplashTexts texts;
        texts.Set(Item(1, "MMMM", place, 0x0000FF));
        PaintSplashTexts(bitmap.Dc(), texts);
        return bitmap.ColoursIn({2, 1, 100, 30});
    };
    EXPECT_EQ(coloursBeyond({1, 0, 2, 1}), coloursBeyond({1, 0, 100, 30}));
    EXPECT_GT(coloursBeyond({1, 0, 2, 1}).size(), 1u);
}

}  // namespace
}  // namespace corvex
