// The window tree and its places.
#include <array>

#include "controls/tabsheet/TabSheet.h"
#include "controls/textprogress/TextProgress.h"
#include "tests/session/window/main/MainWindowHelper.h"

namespace corvex::test {
namespace {

class LayoutTest : public MainWindowTest {
protected:
    // In client coordinates of the main window.
    RECT PlaceOf(void* word) const {
        RECT place{};
        ::GetWindowRect(AsWindow(word), &place);
        ::MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    void Resize(int width, int height) {
        ::SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOMOVE);
        Pumps([] { return ::GetQueueStatus(QS_POSTMESSAGE) == 0; });
    }
    void ExpectFullHouse() const {
        const RECT client = ClientOf(window);
        const RECT band = PlaceOf(session.rebar), sheet = PlaceOf(session.tabSheet), bar = PlaceOf(session.statusBar);
        EXPECT_EQ(0, band.top);
        EXPECT_EQ(client.right, band.right - band.left);
        EXPECT_EQ((RECT{0, band.bottom, client.right, bar.top}), sheet);
        EXPECT_EQ(client.bottom, bar.bottom);
    }
};

TEST_F(LayoutTest, HasTheWindowsThatAreTold) {
    Start();
    EXPECT_EQ("CORVEX", ClassNameOf(window));
    EXPECT_EQ("ReBarWindow32", ClassNameOf(AsWindow(session.rebar)));
    EXPECT_EQ(10000, ::GetDlgCtrlID(AsWindow(session.rebar)));
    EXPECT_EQ(10001, ::GetDlgCtrlID(AsWindow(session.fileToolbar)));
    EXPECT_EQ(10010, ::GetDlgCtrlID(AsWindow(session.scanToolbar)));
    EXPECT_EQ(10008, ::GetDlgCtrlID(AsWindow(session.logBar)));
    EXPECT_EQ(50000, ::GetDlgCtrlID(AsWindow(session.statusBar)));
    EXPECT_EQ("QZRICHSTATIC", ClassNameOf(AsWindow(session.statusLeft)));
    EXPECT_EQ("QZTEXTPROGRESS", ClassNameOf(AsWindow(session.statusRight)));
    EXPECT_EQ("QZTABSHEET", ClassNameOf(AsWindow(session.tabSheet)));
    EXPECT_EQ(100, ::GetDlgCtrlID(AsWindow(session.outputEdit)));
    EXPECT_EQ(session.outputEdit, TabSheet::getPage(AsWindow(session.tabSheet), 0));
    EXPECT_EQ(session.dashPage, TabSheet::getPage(AsWindow(session.tabSheet), 1)) << "the others are PagesTest's";
    EXPECT_EQ(1024, ::SendMessageA(AsWindow(session.statusRight), TPM_GETRANGE, 0, 0));
}

TEST_F(LayoutTest, FillsTheWindowAtAnySize) {
    Start();
    for (const SIZE size : {SIZE{650, 500}, SIZE{1600, 900}, SIZE{300, 200}, SIZE{700, 520}}) {
        Resize(static_cast<int>(size.cx), static_cast<int>(size.cy));
        ExpectFullHouse();
    }
    EXPECT_EQ(1, ::SendMessageA(window, WM_ERASEBKGND, 0, 0)) << "with nothing left to erase";
    Resize(650, 10);
    EXPECT_EQ(PlaceOf(session.tabSheet).top, PlaceOf(session.tabSheet).bottom) << "no height leaves the sheet none";
}

TEST_F(LayoutTest, TheStatusBarHasFourParts) {
    Start();
    Resize(650, 500);
    std::array<int, 4> ends{};
    ASSERT_EQ(4, ::SendMessageA(AsWindow(session.statusBar), SB_GETPARTS, 4, L(ends.data())));
    EXPECT_EQ((std::array{130, 260, 390, -1}), ends);
    RECT part{}, panel{};
    for (int i = 0; i < 2; ++i) {
        ::SendMessageA(AsWindow(session.statusBar), SB_GETRECT, static_cast<WPARAM>(i), L(&part));
        ::GetWindowRect(AsWindow(i == 0 ? session.statusLeft : session.statusRight), &panel);
        ::MapWindowPoints(nullptr, AsWindow(session.statusBar), reinterpret_cast<POINT*>(&panel), 2);
        EXPECT_TRUE(::EqualRect(&part, &panel)) << i;
    }
}

TEST_F(LayoutTest, BandsHoldToolbarsAndLogBar) {
    Start();
    const HWND rebar = AsWindow(session.rebar);
    ASSERT_EQ(3, ::SendMessageA(rebar, RB_GETBANDCOUNT, 0, 0));
    const UINT ids[] = {10001, 10010, 10007};
    void* const children[] = {session.fileToolbar, session.scanToolbar, session.logBarDialog};
    for (UINT i = 0; i < 3; ++i) {
        REBARBANDINFOA band{};
        band.cbSize = REBARBANDINFOA_V3_SIZE;
        band.fMask = RBBIM_ID | RBBIM_CHILD;
        ::SendMessageA(rebar, RB_GETBANDINFOA, i, L(&band));
        EXPECT_EQ(ids[i], band.wID);
        EXPECT_EQ(children[i], band.hwndChild);
    }
}

TEST_F(LayoutTest, NoButtonIsCutAtTheFirstSize) {
    Start();
    Resize(650, 500);
    for (void* const word : {session.fileToolbar, session.scanToolbar, session.logBar}) {
        const HWND bar = AsWindow(word);
        RECT button{};
        const auto last = ::SendMessageA(bar, TB_BUTTONCOUNT, 0, 0) - 1;
        ::SendMessageA(bar, TB_GETITEMRECT, static_cast<WPARAM>(last), L(&button));
        EXPECT_LE(button.right, ClientOf(bar).right) << ::GetDlgCtrlID(bar);
    }
    EXPECT_GE(ClientOf(Slider()).right, 80);
}

TEST_F(LayoutTest, TheSliderStandsBesideTheToolbar) {
    Start();
    const HWND dialog = AsWindow(session.logBarDialog);
    for (const int width : {200, 295, 518, 521, 522, 900, 100}) {
        ::SetWindowPos(dialog, nullptr, 0, 0, width, 21, SWP_NOZORDER | SWP_NOMOVE);
        const RECT slider = corvex::PlaceOf(Slider());
        EXPECT_EQ(119, slider.left);
        const int room = width - 119 - 2;
        EXPECT_EQ(room < 0 ? 0 : room > 400 ? 400 : room, slider.right - slider.left) << width;
    }
}

TEST_F(LayoutTest, ABandThatGrowsMovesThePages) {
    Start();
    Resize(650, 500);
    ::SendMessageA(AsWindow(session.rebar), RB_SETBANDINFOA, 0, 0);
    REBARBANDINFOA band{};
    band.cbSize = REBARBANDINFOA_V3_SIZE;
    band.fMask = RBBIM_CHILDSIZE;
    band.cyMinChild = 60;
    ::SendMessageA(AsWindow(session.rebar), RB_SETBANDINFOA, 2, L(&band));
    ASSERT_TRUE(Pumps([&] { return PlaceOf(session.tabSheet).top >= 60; }));
    ExpectFullHouse();
}

TEST_F(LayoutTest, TheSmallIconIsSmall) {
    Start();
    ICONINFO icon{};
    ASSERT_NE(FALSE, ::GetIconInfo(reinterpret_cast<HICON>(::GetClassLongPtrA(window, GCLP_HICONSM)), &icon));
    BITMAP mask{};
    ::GetObjectA(icon.hbmMask, sizeof mask, &mask);
    EXPECT_EQ(::GetSystemMetrics(SM_CXSMICON), mask.bmWidth);
    ::DeleteObject(icon.hbmMask);
    ::DeleteObject(icon.hbmColor);
}

}  // namespace
}  // namespace corvex::test
