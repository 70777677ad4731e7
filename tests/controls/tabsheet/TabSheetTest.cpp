#include "controls/tabsheet/TabSheet.h"
#include "tests/controls/tabsheet/TabSheetFixture.h"

namespace corvex {
namespace {

using TabSheetTest = TabSheetFixture;

LPARAM g_param = 0;
int g_commands = 0;

INT_PTR CALLBACK PageDialog(HWND, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        g_param = lParam;
        return TRUE;
    }
    if (message == WM_COMMAND) {
        ++g_commands;
        return TRUE;
    }
    return FALSE;
}

TEST_F(TabSheetTest, ItsClassRedrawsOnBothAxesOverTheButtonFace) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    ASSERT_TRUE(::GetClassInfoExA(::GetModuleHandleA(nullptr), "QZTABSHEET", &windowClass));
    EXPECT_EQ(windowClass.style, static_cast<UINT>(CS_HREDRAW | CS_VREDRAW));
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(windowClass.hbrBackground), 16u);
    EXPECT_EQ(windowClass.hCursor, ::LoadCursorA(nullptr, MAKEINTRESOURCEA(32512)));
}

TEST_F(TabSheetTest, TellsThatItIsReadyWhenTheQueueComesToIt) {
    EXPECT_EQ(parent_.CountOf(4), 0);
    Pump();
    ASSERT_EQ(parent_.CountOf(4), 1);
    EXPECT_EQ(parent_.notices.back().from, sheet_);
    EXPECT_EQ(parent_.notices.back().id, static_cast<UINT_PTR>(kSheetId));
}

TEST_F(TabSheetTest, ItsTabsAreInArial14) {
    LOGFONTA font{};
    ::GetObjectA(reinterpret_cast<HFONT>(::SendMessageA(Tabs(), WM_GETFONT, 0, 0)), sizeof font, &font);
    EXPECT_STREQ(font.lfFaceName, "Arial");
    EXPECT_EQ(font.lfHeight, 14);
    EXPECT_EQ(font.lfWeight, 400);
    EXPECT_EQ(font.lfQuality, 2);
    EXPECT_EQ(font.lfPitchAndFamily, 0x32);
}

TEST_F(TabSheetTest, AWindowBecomesAPage) {
    TestWindow page(WS_OVERLAPPEDWINDOW | WS_POPUP);
    const DWORD style = StyleOfWindow(page.Window());
    ASSERT_TRUE(TabSheet::addWindowPage(sheet_, page.Window(), "Output", -1));
    EXPECT_EQ(StyleOfWindow(page.Window()) & ~static_cast<DWORD>(WS_VISIBLE), (style & 0x7F3BFFFF) | WS_CHILD);
    EXPECT_EQ(::GetAncestor(page.Window(), GA_PARENT), Tabs());
    EXPECT_EQ(TabSheet::getPage(sheet_, 0), page.Window());
    TCITEMA item{};
    item.mask = TCIF_PARAM;
    ::SendMessageA(Tabs(), TCM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(reinterpret_cast<HWND>(item.lParam), page.Window());
    EXPECT_TRUE(IsFitted(page.Window()));
}

TEST_F(TabSheetTest, ADialogBecomesAPageAndGoesOnAnswering) {
    AddPage("Output");
    g_param = g_commands = 0;
    const HWND page =
        TabSheet::addDialogPage(sheet_, &PageDialog, ::GetModuleHandleA(nullptr), 101, "Dash", -1, 4711, false);
    ASSERT_TRUE(::IsWindow(page));
    EXPECT_EQ(g_param, 4711);
    EXPECT_EQ(StyleOfWindow(page) & (WS_POPUP | WS_CAPTION | WS_THICKFRAME | WS_CHILD | WS_VISIBLE),
              static_cast<DWORD>(WS_CHILD));
    EXPECT_EQ(::GetAncestor(page, GA_PARENT), Tabs());
    EXPECT_EQ(TabSheet::indexOfPage(sheet_, page), 1);
    ::SendMessageA(::GetDlgItem(page, 40), BM_CLICK, 0, 0);
    EXPECT_EQ(g_commands, 1);
}

TEST_F(TabSheetTest, ADialogPageIsShownWhenAsked) {
    TestWindow& output = AddPage("Output");
    const HWND page =
        TabSheet::addDialogPage(sheet_, &PageDialog, ::GetModuleHandleA(nullptr), 102, "Dash", 0, 0, true);
    EXPECT_TRUE(HasShownStyle(page));
    EXPECT_FALSE(HasShownStyle(output.Window()));
    EXPECT_EQ(Selected(), 0);
    EXPECT_EQ(Titles(), (Strings{"Dash", "Output"}));
}

TEST_F(TabSheetTest, ATemplateThatIsMissingAddsNothing) {
    EXPECT_EQ(TabSheet::addDialogPage(sheet_, &PageDialog, ::GetModuleHandleA(nullptr), 999, "Dash", -1, 0, true),
              nullptr);
    EXPECT_EQ(TabSheet::pageCount(sheet_), 0);
}

TEST_F(TabSheetTest, PagesStandWhereTheirIndexPutsThem) {
    AddPage("B");
    AddPage("D");
    AddPage("A", 0);
    AddPage("C", 2);
    AddPage("E", 99);
    EXPECT_EQ(Titles(), (Strings{"A", "B", "C", "D", "E"}));
    EXPECT_EQ(TabSheet::indexOfPage(sheet_, pages_[2]->Window()), 0);
    EXPECT_EQ(TabSheet::getPage(sheet_, 3), pages_[1]->Window());
}

TEST_F(TabSheetTest, TheFirstPageShowsAndLaterOnesDoNot) {
    TestWindow& first = AddPage("Output");
    EXPECT_TRUE(HasShownStyle(first.Window()));
    EXPECT_EQ(TextOfWindow(sheet_), "Output");
    EXPECT_FALSE(HasShownStyle(AddPage("Dash").Window()));
    EXPECT_FALSE(HasShownStyle(AddPage("Zero", 0).Window()));
    EXPECT_EQ(Selected(), 1);
}

TEST_F(TabSheetTest, AClickOnATabChangesThePage) {
    ::ShowWindow(parent_.Window(), SW_SHOW);
    TestWindow& output = AddPage("Output");
    TestWindow& dash = AddPage("Dash");
    ClickTab(1);
    EXPECT_FALSE(HasShownStyle(output.Window()));
    EXPECT_TRUE(HasShownStyle(dash.Window()));
    EXPECT_EQ(::GetFocus(), dash.Window());
    EXPECT_EQ(TextOfWindow(sheet_), "Dash");
    ClickTab(0);
    EXPECT_TRUE(HasShownStyle(output.Window()));
    EXPECT_FALSE(HasShownStyle(dash.Window()));
    EXPECT_EQ(::GetFocus(), output.Window());
}

TEST_F(TabSheetTest, SelectingDoesWhatAClickDoes) {
    ::ShowWindow(parent_.Window(), SW_SHOW);
    TestWindow& output = AddPage("Output");
    TestWindow& dash = AddPage("Dash");
    ::MoveWindow(dash.Window(), 1, 2, 3, 4, FALSE);
    EXPECT_TRUE(TabSheet::selectPage(sheet_, 1));
    EXPECT_FALSE(HasShownStyle(output.Window()));
    EXPECT_TRUE(HasShownStyle(dash.Window()));
    EXPECT_EQ(::GetFocus(), dash.Window());
    EXPECT_EQ(TextOfWindow(sheet_), "Dash");
    EXPECT_EQ(Selected(), 1);
    EXPECT_TRUE(IsFitted(dash.Window()));
    EXPECT_TRUE(TabSheet::selectPageByWindow(sheet_, output.Window()));
    EXPECT_TRUE(HasShownStyle(output.Window()));
    EXPECT_EQ(Selected(), 0);
    EXPECT_FALSE(TabSheet::selectPage(sheet_, 2));
    EXPECT_FALSE(TabSheet::selectPageByWindow(sheet_, parent_.Window()));
    EXPECT_EQ(Selected(), 0);
}

TEST_F(TabSheetTest, ATitleIsCutToItsBuffer) {
    AddPage("Histograms");
    char title[5] = "....";
    EXPECT_EQ(TabSheet::getTitle(sheet_, 0, title, 5), 4);
    EXPECT_STREQ(title, "Hist");
    EXPECT_EQ(TabSheet::getTitle(sheet_, 0, title, 1), 0);
    EXPECT_STREQ(title, "");
    EXPECT_EQ(TabSheet::getTitle(sheet_, 0, title, 0), 0);
    EXPECT_EQ(TabSheet::getTitle(sheet_, 1, title, 5), 0);
}

TEST_F(TabSheetTest, ANewSizeReachesTabsAndPagesAndIsTold) {
    TestWindow& output = AddPage("Output");
    TestWindow& dash = AddPage("Dash");
    Pump();
    parent_.notices.clear();
    ::MoveWindow(sheet_, 0, 0, 640, 333, FALSE);
    const RECT tabs = PlaceOf(Tabs());
    EXPECT_EQ(tabs.right, 640);
    EXPECT_EQ(tabs.bottom, 333);
    EXPECT_TRUE(IsFitted(output.Window()));
    EXPECT_TRUE(IsFitted(dash.Window()));
    ASSERT_EQ(parent_.Codes(), std::vector<UINT>{3});
    EXPECT_EQ(parent_.notices[0].from, sheet_);
    EXPECT_EQ(parent_.notices[0].id, static_cast<UINT_PTR>(kSheetId));
}

TEST_F(TabSheetTest, NoSizeAtAllLeavesPagesOfNoSize) {
    TestWindow& output = AddPage("Output");
    for (const int size : {1, 0}) {
        ::MoveWindow(sheet_, 0, 0, size, size, FALSE);
        const RECT page = PlaceOf(output.Window());
        EXPECT_EQ(page.right - page.left, 0);
        EXPECT_EQ(page.bottom - page.top, 0);
    }
    ::MoveWindow(sheet_, 0, 0, 400, 300, FALSE);
    EXPECT_TRUE(IsFitted(output.Window()));
}

TEST_F(TabSheetTest, AContextMenuOnAPageIsAlsoAskedOfTheSheetsParent) {
    TestWindow& output = AddPage("Output");
    parent_.listenFor = {1524};
    const LPARAM where = MAKELPARAM(12, 34);
    ::SendMessageA(output.Window(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(output.Window()), where);
    ASSERT_EQ(parent_.heard.size(), 1u);
    EXPECT_EQ(parent_.heard[0].wParam, reinterpret_cast<WPARAM>(output.Window()));
    EXPECT_EQ(parent_.heard[0].lParam, where);
    EXPECT_EQ(output.Count(WM_CONTEXTMENU), 1);
}

TEST_F(TabSheetTest, ARemovedPageIsLeftToTheCaller) {
    TestWindow& output = AddPage("Output");
    TestWindow& dash = AddPage("Dash");
    TestWindow free;
    ASSERT_TRUE(TabSheet::removePage(sheet_, 0, false));
    ASSERT_TRUE(output.Alive());
    EXPECT_FALSE(HasShownStyle(output.Window()));
    EXPECT_EQ(::GetWindowLongPtrA(output.Window(), GWLP_WNDPROC), ::GetWindowLongPtrA(free.Window(), GWLP_WNDPROC));
    EXPECT_TRUE(HasShownStyle(dash.Window()));
    EXPECT_EQ(Titles(), Strings{"Dash"});
    ::DestroyWindow(sheet_);
    EXPECT_TRUE(output.Alive());
    EXPECT_FALSE(dash.Alive());
}

TEST_F(TabSheetTest, ARemovedPageMayComeBack) {
    TestWindow& output = AddPage("Output");
    AddPage("Dash");
    ASSERT_TRUE(TabSheet::removePage(sheet_, 0, false));
    ASSERT_TRUE(TabSheet::addWindowPage(sheet_, output.Window(), "Again", -1));
    EXPECT_EQ(Titles(), (Strings{"Dash", "Again"}));
    EXPECT_FALSE(TabSheet::addWindowPage(sheet_, output.Window(), "Twice", -1));
    EXPECT_EQ(TabSheet::pageCount(sheet_), 2);
}

TEST_F(TabSheetTest, RemovingCanDestroyThePage) {
    AddPage("Output");
    TestWindow& dash = AddPage("Dash");
    ASSERT_TRUE(TabSheet::removePage(sheet_, 1, true));
    EXPECT_FALSE(dash.Alive());
    EXPECT_FALSE(TabSheet::removePage(sheet_, 1, true));
    EXPECT_FALSE(TabSheet::removePage(sheet_, -1, true));
    EXPECT_EQ(Titles(), Strings{"Output"});
}

TEST_F(TabSheetTest, ThePageBesideARemovedOneIsShown) {
    AddPage("A");
    TestWindow& b = AddPage("B");
    TestWindow& c = AddPage("C");
    TabSheet::selectPage(sheet_, 1);
    TabSheet::removePage(sheet_, 0, true);
    EXPECT_TRUE(HasShownStyle(b.Window()));
    EXPECT_EQ(Selected(), 0);
    TabSheet::removePage(sheet_, 0, true);
    EXPECT_TRUE(HasShownStyle(c.Window()));
    EXPECT_EQ(TextOfWindow(sheet_), "C");
}

TEST_F(TabSheetTest, RemovingTheLastPageDestroysTabsAndSheet) {
    AddPage("A");
    const HWND tabs = Tabs(), sheet = sheet_;
    Pump();
    parent_.notices.clear();
    EXPECT_TRUE(TabSheet::removePage(sheet_, 0, true));
    EXPECT_FALSE(::IsWindow(tabs));
    EXPECT_FALSE(::IsWindow(sheet));
    ASSERT_EQ(parent_.Codes(), std::vector<UINT>{1});
    EXPECT_EQ(parent_.notices[0].from, sheet);
    EXPECT_EQ(parent_.notices[0].id, static_cast<UINT_PTR>(kSheetId));
}

TEST_F(TabSheetTest, ClosingTakesThePagesOneByOneAndThenTheSheet) {
    TestWindow& a = AddPage("A");
    TestWindow& b = AddPage("B");
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(a.Alive());
    EXPECT_TRUE(b.Alive());
    ASSERT_TRUE(::IsWindow(sheet_));
    EXPECT_TRUE(HasShownStyle(b.Window()));
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(b.Alive());
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetTest, ClosingASheetWithoutPagesDestroysIt) {
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetTest, OtherWindowsAnswerNothing) {
    for (const HWND other : {HWND{}, parent_.Window(), Tabs()}) {
        char title[4];
        EXPECT_FALSE(TabSheet::addWindowPage(other, parent_.Window(), "x", -1));
        EXPECT_EQ(TabSheet::addDialogPage(other, &PageDialog, ::GetModuleHandleA(nullptr), 101, "x", -1, 0, true),
                  nullptr);
        EXPECT_FALSE(TabSheet::removePage(other, 0, true));
        EXPECT_FALSE(TabSheet::selectPage(other, 0));
        EXPECT_FALSE(TabSheet::selectPageByWindow(other, parent_.Window()));
        EXPECT_EQ(TabSheet::getPage(other, 0), nullptr);
        EXPECT_EQ(TabSheet::indexOfPage(other, parent_.Window()), -1);
        EXPECT_EQ(TabSheet::getTitle(other, 0, title, 4), 0);
        EXPECT_EQ(TabSheet::pageCount(other), 0);
        EXPECT_FALSE(TabSheet::detach(other));
        EXPECT_FALSE(TabSheet::dock(other));
        EXPECT_EQ(TabSheet::detachedPage(other), nullptr);
        TabSheet::setHitTestLocks(other, 1);
        TabSheet::setMovable(other, false);
    }
}

TEST_F(TabSheetTest, AnAncestorOrNothingIsNoPage) {
    ::ShowWindow(parent_.Window(), SW_SHOW);
    EXPECT_FALSE(TabSheet::addWindowPage(sheet_, nullptr, "x", -1));
    EXPECT_FALSE(TabSheet::addWindowPage(sheet_, sheet_, "x", -1));
    EXPECT_FALSE(TabSheet::addWindowPage(sheet_, Tabs(), "x", -1));
    EXPECT_FALSE(TabSheet::addWindowPage(sheet_, parent_.Window(), "x", -1));
    EXPECT_EQ(StyleOfWindow(parent_.Window()) & WS_CHILD, 0u);
    EXPECT_TRUE(::IsWindowVisible(parent_.Window()));
    EXPECT_EQ(TabSheet::pageCount(sheet_), 0);
}

TEST_F(TabSheetTest, TwoSheetsKnowNothingOfEachOther) {
    TestWindow& a = AddPage("A");
    const HWND other = MakeSheet(WS_CHILD);
    EXPECT_FALSE(TabSheet::addWindowPage(other, a.Window(), "A", -1));
    TestWindow b;
    ASSERT_TRUE(TabSheet::addWindowPage(other, b.Window(), "B", -1));
    EXPECT_EQ(Titles(), Strings{"A"});
    ::DestroyWindow(other);
    EXPECT_FALSE(b.Alive());
    EXPECT_EQ(Titles(), Strings{"A"});
    EXPECT_TRUE(HasShownStyle(a.Window()));
}

}  // namespace
}  // namespace corvex
