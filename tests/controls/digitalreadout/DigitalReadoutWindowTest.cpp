#include "controls/digitalreadout/DigitalReadoutWindow.h"
#include "tests/controls/digitalreadout/DigitalReadoutFixture.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex {
namespace {

using DigitalReadoutWindowTest = DigitalReadoutFixture;

HFONT AnyFont() {
    return MakeTestFont().Release();
}

bool Exists(HFONT font) {
    return ::GetObjectType(font) == OBJ_FONT;
}

TEST_F(DigitalReadoutWindowTest, ClassHasAnArrowAWindowBackgroundAndNoStyle) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    ASSERT_TRUE(::GetClassInfoExA(::GetModuleHandleA(nullptr), "QZDIGITALGAUGEREADOUT", &windowClass));
    EXPECT_EQ(windowClass.style, 0u);
    EXPECT_EQ(windowClass.cbWndExtra, static_cast<int>(sizeof(void*)));
    EXPECT_EQ(windowClass.hCursor, ::LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)));
    EXPECT_EQ(windowClass.hbrBackground, reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1)));
}

TEST_F(DigitalReadoutWindowTest, EveryPixelIsPaintedInEverySize) {
    DigitalReadoutSetColor(window, 6, 0x334455);
    for (const SIZE size : {SIZE{60, 60}, SIZE{300, 300}, SIZE{500, 200}}) {
        gauge.Resize(size.cx, size.cy);
        gauge.Mark();
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        EXPECT_FALSE(gauge.HasMark()) << size.cx;
        EXPECT_EQ(PixelOf(window, 0, size.cy - 1), 0u) << size.cx;  // the frame
    }
}

TEST_F(DigitalReadoutWindowTest, SizeRepaintsAtOnceAndWhole) {
    gauge.Mark();
    EXPECT_EQ(gauge.PaintsIn([&] { EXPECT_EQ(gauge.Send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(120, 90)), 0); }), 1);
    EXPECT_FALSE(gauge.HasMark());
}

TEST_F(DigitalReadoutWindowTest, EraseIsSwallowed) {
    gauge.Mark();
    const ClientDc dc(window);
    EXPECT_EQ(gauge.Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.Get())), 1);
    EXPECT_EQ(gauge.Colours().size(), 1u);
    EXPECT_TRUE(gauge.HasMark());
}

TEST_F(DigitalReadoutWindowTest, MenuIsReportedToTheParentUnderACodeOfItsOwn) {
    EXPECT_EQ(gauge.Send(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window), MAKELPARAM(-5, 700)), 0);
    ASSERT_EQ(gauge.commands.size(), 1u);
    EXPECT_EQ(gauge.commands[0].wParam, WPARAM{(1424u << 16) | 0x2345u});
    EXPECT_EQ(gauge.commands[0].lParam, static_cast<LPARAM>(MAKELPARAM(-5, 700)));
    EXPECT_EQ(gauge.Parent().Count(WM_CONTEXTMENU), 0);
}

TEST_F(DigitalReadoutWindowTest, RightClickEndsInTheSameReport) {
    gauge.Send(WM_RBUTTONUP, 0, MAKELPARAM(3, 4));
    ASSERT_EQ(gauge.commands.size(), 1u);
    POINT place{3, 4};
    ::ClientToScreen(window, &place);
    EXPECT_EQ(gauge.commands[0].lParam, static_cast<LPARAM>(MAKELPARAM(place.x, place.y)));
}

TEST_F(DigitalReadoutWindowTest, ParentMayDestroyItWhenTheMenuIsAskedFor) {
    gauge.Parent().handler = [&](UINT message, WPARAM, LPARAM, LRESULT&) {
        if (message == WM_COMMAND) ::DestroyWindow(window);
        return false;
    };
    EXPECT_EQ(gauge.Send(WM_CONTEXTMENU), 0);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(DigitalReadoutWindowTest, MessagesItDoesNotKnowGoToTheSystem) {
    EXPECT_EQ(gauge.Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("text")), TRUE);
    EXPECT_EQ(TextOfWindow(window), "text");
    for (UINT message = WM_APP; message < WM_APP + 0x200; ++message)
        EXPECT_EQ(gauge.Send(message), 0);
}

TEST_F(DigitalReadoutWindowTest, ThousandPaintsLeaveNothingBehind) {
    DigitalReadoutSetValue(window, 1.0f);
    const std::size_t before = LiveGdiObjects();
    for (int i = 0; i < 1000; ++i)
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(LiveGdiObjects(), before);
}

TEST_F(DigitalReadoutWindowTest, SuppliedFontEndsTheAutomaticSizeUntilItIsTakenAway) {
    void (DigitalReadoutWindow::*const setters[])(HFONT) = {
        &DigitalReadoutWindow::SetTitleFont, &DigitalReadoutWindow::SetDigitsFont, &DigitalReadoutWindow::SetUnitsFont};
    for (const auto set : setters) {
        DigitalReadoutSetValue(window, 1.0f);  // four characters
        (Object().*set)(AnyFont());
        DigitalReadoutSetValue(window, 1000000.0f);
        EXPECT_EQ(Model().DigitsHeight(), 44);
        (Object().*set)(nullptr);
        EXPECT_EQ(Model().DigitsHeight(), 44);
        DigitalReadoutSetValue(window, 1000000.0f);
        EXPECT_EQ(Model().DigitsHeight(), 24);
    }
}

TEST_F(DigitalReadoutWindowTest, SuppliedFontIsReplacedByTheNextPaint) {
    const HFONT font = AnyFont();
    Object().SetDigitsFont(font);
    EXPECT_TRUE(Exists(font));
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_FALSE(Exists(font));
    DigitalReadoutSetValue(window, 1.0f);
    EXPECT_EQ(Model().DigitsHeight(), 34);  // the size stays fixed all the same
}

TEST_F(DigitalReadoutWindowTest, SuppliedFontIsOwned) {
    const std::size_t before = LiveGdiObjects();
    const HFONT first = AnyFont(), second = AnyFont(), title = AnyFont();
    Object().SetDigitsFont(first);
    Object().SetDigitsFont(first);
    EXPECT_TRUE(Exists(first));
    Object().SetDigitsFont(second);
    EXPECT_FALSE(Exists(first));
    Object().SetTitleFont(title);
    Object().SetUnitsFont(nullptr);
    EXPECT_FALSE(Exists(second));
    EXPECT_FALSE(Exists(title));
    const HFONT units = AnyFont();
    Object().SetUnitsFont(units);
    ::DestroyWindow(window);
    EXPECT_FALSE(Exists(units));
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
