#include <gtest/gtest.h>

#include "controls/richstatic/RichStatic.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

class RichStaticTest : public ::testing::Test {
protected:
    RichStaticTest() {
        RichStatic::Register(::GetModuleHandleA(nullptr));
        window = ::CreateWindowExA(0, "QZRICHSTATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 60, 20, nullptr, nullptr,
                                   ::GetModuleHandleA(nullptr), nullptr);
        ::UpdateWindow(window);
    }
    ~RichStaticTest() override { ::DestroyWindow(window); }

    HWND window = nullptr;
};

TEST_F(RichStaticTest, BeginsWithABlackBorderOnTheSystemsGround) {
    EXPECT_EQ(PixelOf(window, 0, 0), 0u);
    EXPECT_EQ(PixelOf(window, 59, 19), 0u);
    EXPECT_EQ(PixelOf(window, 1, 1), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(RichStaticTest, KnowsItsMessagesByTheirNumbers) {
    EXPECT_EQ(::SendMessageA(window, 1374, 0, 0x00FF00), -1);
    ::SendMessageA(window, 1375, 0, 0x0000FF);
    ::SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("MMM"));
    EXPECT_EQ(ColoursOf(window), (std::set<COLORREF>{0u, 0x00FF00u, 0x0000FFu}));
    EXPECT_EQ(::SendMessageA(window, 1374, 0, 0), 0x00FF00);
    EXPECT_EQ(::SendMessageA(window, 1375, 0, 0), 0x0000FF);
}

}  // namespace
}  // namespace corvex
