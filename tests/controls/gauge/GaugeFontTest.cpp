#include <gtest/gtest.h>

#include "controls/gauge/GaugeFont.h"

namespace corvex {
namespace {

TEST(GaugeFontTest, IsSemiBoldArialInTheHeightTold) {
    for (const int height : {7, 34}) {
        const OwnedFont font = MakeGaugeFont(height);
        LOGFONTA words{};
        ASSERT_NE(::GetObjectA(font.Get(), sizeof words, &words), 0);
        EXPECT_STREQ(words.lfFaceName, "Arial");
        EXPECT_EQ(words.lfHeight, height);
        EXPECT_EQ(words.lfWidth, 0);
        EXPECT_EQ(words.lfWeight, 600);
        EXPECT_EQ(words.lfQuality, 2);
        EXPECT_EQ(words.lfPitchAndFamily, 0x32);
        EXPECT_EQ(words.lfItalic, 0);
    }
}

}  // namespace
}  // namespace corvex
