#include <gtest/gtest.h>

#include "controls/textprogress/TextProgressPaint.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

using Lines = std::vector<std::string>;

constexpr RECT kArea{0, 0, 120, 21};
constexpr COLORREF kGround = 0xFFFFFF, kSetBar = 0x800000;

TextProgressModel Half(bool vertical = false) {
    TextProgressModel model;
    model.maximum = 3;
    model.position = 1;
    model.vertical = vertical;
    model.barColour = kSetBar;
    model.label.SetText("MMMMMMMM");
    model.label.SetBackColour(kGround);
    return model;
}

Lines Painted(const TextProgressModel& model) {
    return Recorded([&](HDC dc) { PaintTextProgress(dc, kArea, model); });
}

// In the pixels of a bitmap: texts there may be of two colours.
std::set<COLORREF> PaintedColours(const TextProgressModel& model, const RECT& part) {
    const TestBitmap bitmap(120, 21, 0x010203);
    const OwnedFont font = MakeTestFont();
    const SelectGuard selected(bitmap.Dc(), font.Get());
    PaintTextProgress(bitmap.Dc(), kArea, model);
    return bitmap.ColoursIn(part.left, part.top, part.right, part.bottom);
}

TEST(TextProgressPaintTest, FillsRestAndBarAndDrawsTheTextOverBoth) {
    TextProgressModel model = Half();
    model.label.SetTextColour(0x0000FF);
    EXPECT_EQ(Painted(model), (Lines{"brush ffffff", "fill 40,0,120,21", "brush 800000", "fill 0,0,40,21",
                                     "text colour 0000ff", "transparent", CentredText("MMMMMMMM", 120, 21)}));
}

TEST(TextProgressPaintTest, VerticalBarStandsAtTheBottom) {
    TextProgressModel model = Half(true);
    model.label.SetTextColour(0x0000FF);
    const Lines lines = Painted(model);
    EXPECT_EQ(PlacesOf(lines, "fill 0,0,120,14").size(), 1u);
    EXPECT_EQ(PlacesOf(lines, "fill 0,14,120,21").size(), 1u);
}

TEST(TextProgressPaintTest, DrawsNoPartThatIsEmpty) {
    TextProgressModel model = Half();
    model.position = 0;
    EXPECT_EQ(PlacesOf(Painted(model), "brush 800000").size(), 0u);
    model.position = 4;
    const Lines full = Painted(model);
    EXPECT_EQ(PlacesOf(full, "brush ffffff").size(), 0u);
    EXPECT_EQ(PlacesOf(full, "fill 0,0,120,21").size(), 1u);
}

TEST(TextProgressPaintTest, GroundWithoutAColourIsThatOfButtons) {
    TextProgressModel model = Half();
    model.label.SetBackColour(kNoColour);
    model.label.SetText("");
    EXPECT_EQ(PaintedColours(model, {40, 0, 120, 21}), std::set<COLORREF>{::GetSysColor(COLOR_BTNFACE)});
}

TEST(TextProgressPaintTest, TwoTonesAreDrawnInTheGroundsColourAndThenOutsideTheBarInItsOwn) {
    TextProgressModel model = Half();
    model.label.SetTextColour(kNoColour);
    const Lines lines = Painted(model);
    const std::string text = CentredText("MMMMMMMM", 120, 21);
    const auto ground = PlacesOf(lines, "text colour ffffff"), bar = PlacesOf(lines, "text colour 800000");
    const auto clip = PlacesOf(lines, "clip 40,0,120,21"), open = PlacesOf(lines, "clip none");
    const auto texts = PlacesOf(lines, text);
    ASSERT_EQ(ground.size(), 1u);
    ASSERT_EQ(bar.size(), 1u);
    ASSERT_EQ(clip.size(), 1u);
    ASSERT_EQ(texts.size(), 2u);
    ASSERT_FALSE(open.empty());
    EXPECT_LT(ground[0], texts[0]);
    EXPECT_LT(texts[0], clip[0]);
    EXPECT_LT(clip[0], texts[1]);
    EXPECT_LT(bar[0], texts[1]);
    EXPECT_LT(texts[1], open.back());
}

TEST(TextProgressPaintTest, TwoTonesMeetAtTheEdgeOfTheBar) {
    const std::set<COLORREF> both{kGround, kSetBar};
    for (const bool vertical : {false, true}) {
        TextProgressModel model = Half(vertical);
        model.label.SetTextColour(kNoColour);
        const RECT bar = vertical ? RECT{0, 14, 120, 21} : RECT{0, 0, 40, 21};
        const RECT rest = vertical ? RECT{0, 0, 120, 14} : RECT{40, 0, 120, 21};
        EXPECT_EQ(PaintedColours(model, bar), both) << vertical;
        EXPECT_EQ(PaintedColours(model, rest), both) << vertical;
        model.label.SetText("");
        EXPECT_EQ(PaintedColours(model, bar), std::set<COLORREF>{kSetBar}) << vertical;
        EXPECT_EQ(PaintedColours(model, rest), std::set<COLORREF>{kGround}) << vertical;
    }
}

TEST(TextProgressPaintTest, TwoTonesOverAFullBarAreOne) {
    TextProgressModel model = Half();
    model.position = 30;
    model.label.SetTextColour(kNoColour);
    EXPECT_EQ(PaintedColours(model, kArea), (std::set<COLORREF>{kGround, kSetBar}));
}

TEST(TextProgressPaintTest, LeavesNoObjectAndNoClipBehind) {
    const TestBitmap bitmap(120, 21, 0);
    TextProgressModel model = Half();
    model.label.SetTextColour(kNoColour);
    const std::size_t before = LiveGdiObjects();
    for (int i = 0; i < 1000; ++i)
        PaintTextProgress(bitmap.Dc(), kArea, model);
    EXPECT_EQ(LiveGdiObjects(), before);
    EXPECT_EQ(::SetPixel(bitmap.Dc(), 2, 2, 0x00FF00), 0x00FF00u);
    EXPECT_EQ(bitmap.At(2, 2), 0x00FF00u);
}

}  // namespace
}  // namespace corvex
