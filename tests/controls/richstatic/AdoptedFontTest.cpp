#include <gtest/gtest.h>

#include "controls/richstatic/AdoptedFont.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

bool Lives(HFONT font) {
    return ::GetObjectType(font) == OBJ_FONT;
}

TEST(AdoptedFontTest, BeginsWithTheSystemsFontInWeight500) {
    const AdoptedFont font;
    LOGFONTA own{}, stock{};
    ASSERT_NE(::GetObjectA(font.InUse(), sizeof own, &own), 0);
    ::GetObjectA(::GetStockObject(DEFAULT_GUI_FONT), sizeof stock, &stock);
    EXPECT_EQ(own.lfWeight, 500);
    EXPECT_EQ(own.lfHeight, stock.lfHeight);
    EXPECT_STREQ(own.lfFaceName, stock.lfFaceName);
}

TEST(AdoptedFontTest, DeletesTheAdoptedOneWhenAnotherComesOrItGoesBackButNotWhenItComesTwice) {
    AdoptedFont font;
    const HFONT own = font.InUse(), first = MakeTestFont().Release(), second = MakeTestFont().Release();
    font.Adopt(first);
    font.Adopt(first);
    EXPECT_EQ(font.InUse(), first);
    EXPECT_TRUE(Lives(first));
    font.Adopt(second);
    EXPECT_EQ(font.InUse(), second);
    EXPECT_FALSE(Lives(first));
    font.Adopt(nullptr);
    EXPECT_EQ(font.InUse(), own);
    EXPECT_FALSE(Lives(second));
    EXPECT_TRUE(Lives(own));
}

TEST(AdoptedFontTest, MayBeGivenItsOwnFontBack) {
    AdoptedFont font;
    const HFONT own = font.InUse();
    const std::size_t owned = LiveGdiObjects();
    font.Adopt(own);
    EXPECT_EQ(LiveGdiObjects(), owned);
    font.Adopt(MakeTestFont().Release());
    EXPECT_TRUE(Lives(own));
    font.Adopt(own);
    EXPECT_EQ(font.InUse(), own);
    EXPECT_EQ(LiveGdiObjects(), owned);
}

TEST(AdoptedFontTest, TakesBothFontsWithIt) {
    const std::size_t before = LiveGdiObjects();
    HFONT own = nullptr, other = MakeTestFont().Release();
    {
        AdoptedFont font;
        own = font.InUse();
        font.Adopt(other);
    }
    EXPECT_FALSE(Lives(own));
    EXPECT_FALSE(Lives(other));
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
