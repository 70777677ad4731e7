#include <gtest/gtest.h>

#include "controls/gauge/LogicalSquare.h"
#include "controls/window/GdiObjects.h"

namespace corvex {
namespace {

// Where the far corner of a square of 180 units lies in a client of this size.
POINT Corner(int width, int height, bool round) {
    const MemoryDc dc;
    const LogicalSquare square(dc.Get(), RECT{0, 0, width, height}, 180, round);
    POINT corner{180, 180};
    ::LPtoDP(dc.Get(), &corner, 1);
    return corner;
}

TEST(LogicalSquareTest, StretchesWithTheClient) {
    const POINT wide = Corner(540, 360, false), tall = Corner(180, 900, false);
    EXPECT_EQ(wide.x, 540);
    EXPECT_EQ(wide.y, 360);
    EXPECT_EQ(tall.x, 180);
    EXPECT_EQ(tall.y, 900);
}

TEST(LogicalSquareTest, IsNeverSmallerThanItsUnits) {
    const POINT small = Corner(60, 40, false), narrow = Corner(60, 360, false);
    EXPECT_EQ(small.x, 180);
    EXPECT_EQ(small.y, 180);
    EXPECT_EQ(narrow.x, 180);
    EXPECT_EQ(narrow.y, 360);
}

TEST(LogicalSquareTest, RoundOneIsAsWideAsHighInTheSmallerExtent) {
    const POINT wide = Corner(540, 360, true), tall = Corner(270, 900, true), small = Corner(60, 900, true);
    EXPECT_EQ(wide.x, 360);
    EXPECT_EQ(wide.y, 360);
    EXPECT_EQ(tall.x, 270);
    EXPECT_EQ(tall.y, 270);
    EXPECT_EQ(small.x, 180);
    EXPECT_EQ(small.y, 180);
}

TEST(LogicalSquareTest, PutsTheContextBack) {
    const MemoryDc dc;
    const HGDIOBJ pen = ::GetCurrentObject(dc.Get(), OBJ_PEN);
    {
        const LogicalSquare square(dc.Get(), RECT{0, 0, 500, 500}, 100, false);
        ASSERT_EQ(::GetMapMode(dc.Get()), MM_ANISOTROPIC);
        ::SelectObject(dc.Get(), ::GetStockObject(WHITE_PEN));
        ::SetBkMode(dc.Get(), TRANSPARENT);
    }
    EXPECT_EQ(::GetMapMode(dc.Get()), MM_TEXT);
    EXPECT_EQ(::GetCurrentObject(dc.Get(), OBJ_PEN), pen);
    EXPECT_EQ(::GetBkMode(dc.Get()), OPAQUE);
}

}  // namespace
}  // namespace corvex
