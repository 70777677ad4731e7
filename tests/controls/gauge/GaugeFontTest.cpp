#include <gtest/gtest.h>

#include "controls/gauge/GaugeFont.h"

namespace corvex {
namespace {

TEST(GaugeFontTest, IsSemiBoldArialInTheHeightTold) {
    for (const int height : {7, 34}) {
        const OwnedFont font = MakeGaugeFont(height);
        LOGFONTA fontInfo{};
        ASSERT_NE(::GetObjectA(font.Get(), sizeof fontInfo, &fontInfo), 0);
        EXPECT_STREQ(fontInfo.lfFaceName, "Arial");
        EXPECT_EQ(fontInfo.lfHeight, height);
        EXPECT_EQ(fontInfo.lfWidth, 0);
        EXPECT_EQ(fontInfo.lfWeight, 600);
        EXPECT_EQ(fontInfo.lfQuality, 2);
        EXPECT_EQ(fontInfo.lfPitchAndFamily, 0x32);
        EXPECT_EQ(fontInfo.lfItalic, 0);
    }
}

}  // namespace
}  // namespace corvex
