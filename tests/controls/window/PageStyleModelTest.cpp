#include <gtest/gtest.h>

#include "controls/window/PageStyleModel.h"

namespace corvex {
namespace {

TEST(PageStyleModelTest, APageLosesPopUpCaptionAndThickFrameAndKeepsEveryOtherBit) {
    for (const std::uint32_t style : {0x80000000u, 0x00C00000u, 0x00040000u, 0u})
        EXPECT_EQ(PageStyle(style), 0x40000000u);
    EXPECT_EQ(PageStyle(0xFFFFFFFFu), 0x7F3BFFFFu);
    EXPECT_EQ(PageStyle(0x10080004u), 0x50080004u);
}

TEST(PageStyleModelTest, AWindowThatStandsAloneIsAPopUpInsteadOfAChild) {
    EXPECT_EQ(AloneStyle(0x50080004u), 0x90080004u);
}

}  // namespace
}  // namespace corvex
