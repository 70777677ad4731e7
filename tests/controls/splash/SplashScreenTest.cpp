#include <gtest/gtest.h>

#include "controls/splash/SplashScreen.h"
#include "tests/controls/window/ControlTestHelper.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

constexpr int kBitmap = 130;  // 64 by 24
constexpr COLORREF kBlue = 0xFF0000, kYellow = 0x00FFFF, kRed = 0x0000FF, kGreen = 0x00FF00;
constexpr RECT kLeft{2, 2, 30, 20}, kRight{34, 2, 62, 20};

class SplashScreenTest : public ::testing::Test {
protected:
    bool Create(std::uint32_t flags = 0, HWND parent = nullptr) {
        return splash.create(parent, instance, kBitmap, 0, flags);
    }
    bool Shows(COLORREF colour) { return ColoursOf(splash.Window()).contains(colour); }
    bool OnShow() { return ::IsWindowVisible(splash.Window()) != FALSE; }

    const HINSTANCE instance = ::GetModuleHandleA(nullptr);
    SplashScreen splash;
};

TEST_F(SplashScreenTest, IsAHiddenPopUpOfTheBitmapsSize) {
    ASSERT_TRUE(Create());
    EXPECT_EQ(SizeOf(splash.Window()), (SIZE{64, 24}));
    EXPECT_FALSE(OnShow());
    EXPECT_FALSE(splash.IsVisible());
    EXPECT_EQ(StyleOfWindow(splash.Window()) & (WS_POPUP | WS_CAPTION | WS_CHILD | WS_THICKFRAME),
              static_cast<DWORD>(WS_POPUP));
    EXPECT_EQ(ClassNameOf(splash.Window()), "QZSPLASHT");
    const HWND window = splash.Window();
    EXPECT_FALSE(Create()) << "a second one";
    EXPECT_EQ(splash.Window(), window);
}

TEST_F(SplashScreenTest, StaysOnTopWithBitOneOfTheFlagsAlone) {
    for (const std::uint32_t flags : {0u, 1u, 2u, 0xFFFFFFFDu}) {
        SplashScreen one;
        ASSERT_TRUE(one.create(nullptr, instance, kBitmap, 0, flags));
        const bool topmost = (::GetWindowLongPtrA(one.Window(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
        EXPECT_EQ(topmost, (flags & 2) != 0) << flags;
    }
}

TEST_F(SplashScreenTest, BitmapThatIsMissingLeavesNoWindow) {
    EXPECT_FALSE(splash.create(nullptr, instance, 131, 0, 0));
    EXPECT_EQ(splash.Window(), nullptr);
    splash.show(1);
    splash.hide();
    splash.setText("text", kLeft, 1, OwnedFont(), kRed);
    EXPECT_FALSE(splash.IsVisible());
    EXPECT_TRUE(Create());
}

TEST_F(SplashScreenTest, ShowsTheBitmapInTheMiddleOfTheScreen) {
    ASSERT_TRUE(Create());
    splash.show(0);
    EXPECT_TRUE(OnShow());
    EXPECT_TRUE(splash.IsVisible());
    const RECT place = PlaceOf(splash.Window());
    EXPECT_EQ(place.left, (::GetSystemMetrics(SM_CXSCREEN) - 64) / 2);
    EXPECT_EQ(place.top, (::GetSystemMetrics(SM_CYSCREEN) - 24) / 2);
    EXPECT_EQ(PixelOf(splash.Window(), 0, 0), kBlue);
    EXPECT_EQ(PixelOf(splash.Window(), 63, 23), kYellow);
    EXPECT_EQ(ColoursOf(splash.Window()), (Colours{kBlue, kYellow}));
}

TEST_F(SplashScreenTest, HidesWhenItsTimeIsUpOrItIsToldAndItsTimerGoesWithIt) {
    ASSERT_TRUE(Create());
    const auto expectHidden = [this] {
        EXPECT_FALSE(splash.IsVisible());
        EXPECT_FALSE(OnShow());
        EXPECT_FALSE(::KillTimer(splash.Window(), 0));
    };
    splash.show(20);
    EXPECT_TRUE(splash.IsVisible());
    EXPECT_TRUE(Pumps([&] { return !splash.IsVisible(); }));
    expectHidden();
    splash.show(60000);
    ::SendMessageA(splash.Window(), WM_TIMER, 1, 0);
    EXPECT_TRUE(splash.IsVisible());
    ::SendMessageA(splash.Window(), WM_TIMER, 0, 0);
    expectHidden();
    splash.show(60000);
    splash.hide();
    expectHidden();
    splash.show(60000);
    splash.show(0);
    EXPECT_TRUE(splash.IsVisible()) << "until it is hidden";
    EXPECT_FALSE(::KillTimer(splash.Window(), 0));
}

TEST_F(SplashScreenTest, TextIsShownAtOnceAndMayChange) {
    ASSERT_TRUE(Create());
    splash.show(0);
    splash.setText("WWW", kLeft, 1, OwnedFont(), kRed);
    EXPECT_TRUE(Shows(kRed));
    EXPECT_FALSE(Shows(kGreen));
    splash.setText("WWW", kRight, 1, OwnedFont(), kGreen);
    EXPECT_TRUE(Shows(kGreen));
    EXPECT_FALSE(Shows(kRed));
    splash.setText("W", kLeft, 2, OwnedFont(), kRed);
    EXPECT_TRUE(Shows(kGreen));
    EXPECT_TRUE(Shows(kRed));
}

TEST_F(SplashScreenTest, TextMayComeBeforeTheWindow) {
    splash.setText("WWW", kLeft, 1, OwnedFont(), kRed);
    splash.setText(nullptr, kRight, 2, OwnedFont(), kGreen);
    ASSERT_TRUE(Create());
    splash.show(0);
    EXPECT_TRUE(Shows(kRed));
}

TEST_F(SplashScreenTest, WindowThatWentWithItsParentIsForgotten) {
    const HWND parent =
        ::CreateWindowExA(0, "STATIC", "", WS_OVERLAPPED, 0, 0, 9, 9, nullptr, nullptr, instance, nullptr);
    ASSERT_TRUE(Create(0, parent));
    EXPECT_EQ(::GetWindow(splash.Window(), GW_OWNER), parent);
    splash.show(60000);
    ::DestroyWindow(parent);
    EXPECT_EQ(splash.Window(), nullptr);
    EXPECT_FALSE(splash.IsVisible());
    splash.setText("WWW", kLeft, 1, OwnedFont(), kRed);
    splash.hide();
}

TEST_F(SplashScreenTest, EndUnregistersAnotherName) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = &::DefWindowProcA;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = "QZSPLASH";
    ASSERT_NE(::RegisterClassA(&windowClass), 0);
    { SplashScreen().create(nullptr, instance, kBitmap, 0, 0); }
    EXPECT_FALSE(::GetClassInfoA(instance, "QZSPLASH", &windowClass));
}

TEST_F(SplashScreenTest, ThousandPaintsAndTheEndLeaveNothingButTheClass) {
    const std::size_t none = LiveGdiObjects();
    HWND window = nullptr;
    {
        SplashScreen one;
        ASSERT_TRUE(one.create(nullptr, instance, kBitmap, 0, 0));
        one.setText("WWW", kLeft, 1, MakeTestFont(), kRed);
        one.show(60000);
        window = one.Window();
        const std::size_t before = LiveGdiObjects(), all = AllGdiObjects();
        for (int i = 0; i < 1000; ++i)
            one.setText("WWW", kLeft, 2, OwnedFont(), static_cast<COLORREF>(i));
        EXPECT_EQ(LiveGdiObjects(), before);
        EXPECT_EQ(AllGdiObjects(), all);
    }
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(LiveGdiObjects(), none);
    EXPECT_TRUE(Create());
}

}  // namespace
}  // namespace corvex
