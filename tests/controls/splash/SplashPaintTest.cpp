#include <gtest/gtest.h>

#include "controls/splash/SplashPaint.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

using Lines = std::vector<std::string>;

SplashText Item(int id, const char* text, RECT place, COLORREF colour, OwnedFont font = OwnedFont()) {
    SplashText item;
    item.itemId = id;
    item.text = text;
    item.rectangle = place;
    item.colour = colour;
    item.font = std::move(font);
    return item;
}

Lines Painted(const SplashTexts& texts) {
    return Recorded([&](HDC dc) { PaintSplashTexts(dc, texts); });
}

// The fonts that a paint creates, as "height weight face".
int CALLBACK OnFont(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM fonts) {
    if (record->iType != EMR_EXTCREATEFONTINDIRECTW) return 1;
    const LOGFONTW& font = reinterpret_cast<const EMREXTCREATEFONTINDIRECTW*>(record)->elfw.elfLogFont;
    std::string line = std::to_string(font.lfHeight);
    line.append(" ").append(std::to_string(font.lfWeight)).append(" ");
    for (const WCHAR* letter = font.lfFaceName; *letter != 0; ++letter)
        line.push_back(static_cast<char>(*letter));
    reinterpret_cast<Lines*>(fonts)->push_back(line);
    return 1;
}

Lines FontsOf(const SplashTexts& texts) {
    const HDC dc = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    PaintSplashTexts(dc, texts);
    const HENHMETAFILE file = ::CloseEnhMetaFile(dc);
    Lines fonts;
    ::EnumEnhMetaFile(nullptr, file, &OnFont, &fonts, nullptr);
    ::DeleteEnhMetaFile(file);
    return fonts;
}

TEST(SplashPaintTest, DrawsEachTextWhereItIsToBeginInItsColour) {
    SplashTexts texts;
    texts.Set(Item(1, "Build 1.0", {260, 111, 400, 130}, 0x0000FF));
    texts.Set(Item(2, "Loading", {5, 6, 100, 20}, 0x00FF00));
    EXPECT_EQ(Painted(texts), (Lines{"text colour 0000ff", "transparent", "text 260,111 Build 1.0",
                                     "text colour 00ff00", "transparent", "text 5,6 Loading"}));
}

TEST(SplashPaintTest, AmpersandIsALetter) {
    SplashTexts texts;
    texts.Set(Item(1, "A&B", {0, 0, 9, 9}, 0));
    EXPECT_EQ(PlacesOf(Painted(texts), "text 0,0 A&B").size(), 1u);
}

TEST(SplashPaintTest, TextIsMeasuredSoThatARectangleTooSmallCutsNothing) {
    const auto coloursBeyond = [](const RECT& place) {
        const TestBitmap bitmap(100, 30, 0xFFFFFF);
        SplashTexts texts;
        texts.Set(Item(1, "MMMM", place, 0x0000FF));
        PaintSplashTexts(bitmap.Dc(), texts);
        return bitmap.ColoursIn(2, 1, 100, 30);
    };
    EXPECT_EQ(coloursBeyond({1, 0, 2, 1}), coloursBeyond({1, 0, 100, 30}));
    EXPECT_GT(coloursBeyond({1, 0, 2, 1}).size(), 1u);
}

TEST(SplashPaintTest, TextHasTheSplashsFontOrItsOwn) {
    SplashTexts texts;
    texts.Set(Item(1, "a", {0, 0, 50, 20}, 0));
    texts.Set(
        Item(2, "b", {0, 20, 50, 40}, 0, OwnedFont(::CreateFontA(21, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"))));
    EXPECT_EQ(FontsOf(texts), (Lines{"13 600 Arial", "21 400 Arial"}));
}

TEST(SplashPaintTest, LeavesNoObjectBehind) {
    const TestBitmap bitmap(100, 30, 0);
    SplashTexts texts;
    texts.Set(Item(1, "a", {0, 0, 50, 20}, 0));
    const std::size_t before = LiveGdiObjects();
    for (int i = 0; i < 1000; ++i)
        PaintSplashTexts(bitmap.Dc(), texts);
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
