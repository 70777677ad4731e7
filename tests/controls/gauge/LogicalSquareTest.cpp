#include <gtest/gtest.h>

#include "controls/gauge/LogicalSquare.h"
#include "controls/window/GdiObjects.h"

namespace corvex {
namespace {

TEST(LogicalSquareTest, StretchesOrStaysRoundAndIsNeverSmallerThanItsUnits) {
    const struct {
        int width, height;
        bool isRound;
        POINT corner;  // where 180, 180 lies
    } cases[] = {{540, 360, false, {540, 360}}, {180, 900, false, {180, 900}}, {60, 40, false, {180, 180}},
                 {60, 360, false, {180, 360}},  {540, 360, true, {360, 360}},  {270, 900, true, {270, 270}},
                 {60, 900, true, {180, 180}}};
    for (const auto& expected : cases) {
        SCOPED_TRACE(::testing::Message() << expected.width << " by " << expected.height << " " << expected.isRound);
        const MemoryDc dc;
        const LogicalSquare square(dc.Get(), RECT{0, 0, expected.width, expected.height}, 180, expected.isRound);
        POINT corner{180, 180};
        ::LPtoDP(dc.Get(), &corner, 1);
        EXPECT_EQ(corner.x, expected.corner.x);
        EXPECT_EQ(corner.y, expected.corner.y);
    }
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
