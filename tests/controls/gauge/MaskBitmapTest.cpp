#include <gtest/gtest.h>

#include "controls/gauge/MaskBitmap.h"

namespace corvex {
namespace {

constexpr COLORREF kInk = RGB(10, 20, 30), kOther = RGB(30, 20, 10);

void Mark(const MaskBitmap& sheet, int x, int y, COLORREF colour) {
    ::SetPixel(sheet.Dc(), x, y, colour);
}

TEST(MaskBitmapTest, ShapeHasAllPixelsOfTheColourAndNoOther) {
    const MaskBitmap sheet(RECT{0, 0, 9, 7});
    const POINT ink[] = {{0, 0}, {1, 0}, {8, 0}, {3, 2}, {4, 2}, {6, 2}, {0, 6}, {8, 6}};
    for (const POINT& place : ink)
        Mark(sheet, place.x, place.y, kInk);
    Mark(sheet, 5, 2, kOther);
    const OwnedRegion shape = sheet.ShapeOf(kInk);
    for (int y = -1; y <= 7; ++y) {
        for (int x = -1; x <= 9; ++x) {
            bool isInk = false;
            for (const POINT& place : ink)
                isInk = isInk || (place.x == x && place.y == y);
            EXPECT_EQ(isInk, ::PtInRegion(shape.Get(), x, y) != FALSE) << x << "," << y;
        }
    }
    EXPECT_TRUE(::PtInRegion(sheet.ShapeOf(kOther).Get(), 5, 2));
}

TEST(MaskBitmapTest, ColourThatIsNotThereHasAnEmptyShape) {
    const MaskBitmap sheet(RECT{0, 0, 4, 4});
    const OwnedRegion shape = sheet.ShapeOf(kInk);
    ASSERT_TRUE(shape);
    RECT box{1, 2, 3, 4};
    EXPECT_EQ(NULLREGION, ::GetRgnBox(shape.Get(), &box));
}

TEST(MaskBitmapTest, SheetIsBlackAndBeginsAtTheAreasCorner) {
    const MaskBitmap sheet(RECT{5, 3, 9, 10});
    RECT box{};
    EXPECT_EQ(SIMPLEREGION, ::GetRgnBox(sheet.ShapeOf(RGB(0, 0, 0)).Get(), &box));
    EXPECT_EQ(0, box.left);
    EXPECT_EQ(0, box.top);
    EXPECT_EQ(4, box.right);
    EXPECT_EQ(7, box.bottom);
}

TEST(MaskBitmapTest, ThereIsNoneForNoPixelsNorForFarTooMany) {
    const RECT areas[] = {{0, 0, 0, 0}, {0, 0, 0, 50}, {0, 0, 50, 0}, {0, 0, 700000, 400000}, {0, 0, 1 << 24, 2}};
    for (const RECT& area : areas) {
        const MaskBitmap sheet(area);
        EXPECT_FALSE(sheet.ShapeOf(RGB(0, 0, 0))) << area.right << " by " << area.bottom;
    }
}

TEST(MaskBitmapTest, ThereIsNoneWithoutAContextToDrawOn) {
    const MaskBitmap sheet(RECT{0, 0, 4, 4}, reinterpret_cast<HDC>(0x5A5A));
    ASSERT_EQ(nullptr, sheet.Dc());
    EXPECT_FALSE(sheet.ShapeOf(RGB(0, 0, 0)));
    EXPECT_FALSE(sheet.ShapeOf(kInk));
}

TEST(MaskBitmapTest, NothingIsLeftBehind) {
    const std::size_t before = LiveGdiObjects();
    {
        const MaskBitmap sheet(RECT{0, 0, 9, 7});
        const OwnedRegion shape = sheet.ShapeOf(RGB(0, 0, 0));
        EXPECT_GT(LiveGdiObjects(), before);
    }
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
