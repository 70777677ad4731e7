#include <gtest/gtest.h>

#include "controls/richstatic/RichStatic.h"
#include "tests/controls/window/ShownControl.h"

namespace corvex {
namespace {

TEST(RichStaticTest, BeginsWithABlackBorderOnTheSystemsGroundAndKnowsItsMessagesByTheirNumbers) {
    RichStatic::Register(::GetModuleHandleA(nullptr));
    const ShownControl label("QZRICHSTATIC", 60, 20);
    EXPECT_EQ(ColoursOf(label.Window()), (Colours{0u, ::GetSysColor(COLOR_BTNFACE)}));
    EXPECT_EQ(label.Send(1374, 0, 0x00FF00), -1);
    label.Send(1375, 0, 0x0000FF);
    label.Send(WM_SETTEXT, 0, L("MMM"));
    EXPECT_EQ(ColoursOf(label.Window()), (Colours{0u, 0x00FF00u, 0x0000FFu}));
    EXPECT_EQ(label.Send(1374, 0, 0), 0x00FF00);
    EXPECT_EQ(label.Send(1375, 0, 0), 0x0000FF);
}

}  // namespace
}  // namespace corvex
