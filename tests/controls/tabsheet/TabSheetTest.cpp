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

TEST_F(TabSheetTest, TellsThatItIsReadyWhenTheQueueComesToIt) {
    EXPECT_EQ(parent_.CountOf(4), 0);
    Pump();
    ASSERT_EQ(parent_.CountOf(4), 1);
    EXPECT_EQ(parent_.notices.back().from, sheet_);
    EXPECT_EQ(parent_.notices.back().id, static_cast<UINT_PTR>(kSheetId));
}

TEST_F(TabSheetTest, ItsTabsAreInArial14) {
    const LOGFONTA font = FontOf(Tabs());
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
    ::SendMessageA(Tabs(), TCM_GETITEMA, 0, L(&item));
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

TEST_F(TabSheetTest, ADialogPageIsShownWhenAskedUnlessItsTemplateIsMissing) {
    TestWindow& output = AddPage("Output");
    const HINSTANCE module = ::GetModuleHandleA(nullptr);
    const HWND page = TabSheet::addDialogPage(sheet_, &PageDialog, module, 102, "Dash", 0, 0, true);
    EXPECT_TRUE(HasShownStyle(page));
    EXPECT_FALSE(HasShownStyle(output.Window()));
    EXPECT_EQ(Selected(), 0);
    EXPECT_EQ(TabSheet::addDialogPage(sheet_, &PageDialog, module, 999, "None", -1, 0, true), nullptr);
    EXPECT_EQ(Titles(), (Strings{"Dash", "Output"}));
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

TEST_F(TabSheetTest, AClickOnATabChangesThePageAndSelectingDoesTheSame) {
    ::ShowWindow(parent_.Window(), SW_SHOW);
    const auto [a, b] = AddPages<2>();
    const auto expectShown = [&](TestWindow* page, TestWindow* other, const char* title) {
        EXPECT_TRUE(HasShownStyle(page->Window()));
        EXPECT_FALSE(HasShownStyle(other->Window()));
        EXPECT_EQ(::GetFocus(), page->Window());
        EXPECT_EQ(TextOfWindow(sheet_), title);
        EXPECT_EQ(Selected(), page == a ? 0 : 1);
        EXPECT_TRUE(IsFitted(page->Window()));
    };
    ClickTab(1);
    expectShown(b, a, "B");
    ClickTab(0);
    expectShown(a, b, "A");
    ::MoveWindow(b->Window(), 1, 2, 3, 4, FALSE);
    EXPECT_TRUE(TabSheet::selectPage(sheet_, 1));
    expectShown(b, a, "B");
    EXPECT_TRUE(TabSheet::selectPageByWindow(sheet_, a->Window()));
    EXPECT_FALSE(TabSheet::selectPage(sheet_, 2));
    EXPECT_FALSE(TabSheet::selectPageByWindow(sheet_, parent_.Window()));
    expectShown(a, b, "A");
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
    const auto [a, b] = AddPages<2>();
    Pump();
    parent_.notices.clear();
    ::MoveWindow(sheet_, 0, 0, 640, 333, FALSE);
    EXPECT_EQ(SizeOf(Tabs()), (SIZE{640, 333}));
    EXPECT_TRUE(IsFitted(a->Window()) && IsFitted(b->Window()));
    ASSERT_EQ(parent_.Codes(), std::vector<UINT>{3});
    EXPECT_EQ(parent_.notices[0].from, sheet_);
    EXPECT_EQ(parent_.notices[0].id, static_cast<UINT_PTR>(kSheetId));
    for (const int size : {1, 0}) {
        ::MoveWindow(sheet_, 0, 0, size, size, FALSE);
        EXPECT_EQ(SizeOf(a->Window()), (SIZE{0, 0}));
    }
    ::MoveWindow(sheet_, 0, 0, 400, 300, FALSE);
    EXPECT_TRUE(IsFitted(a->Window()));
}

TEST_F(TabSheetTest, AContextMenuOnAPageIsAlsoAskedOfTheSheetsParent) {
    TestWindow& output = AddPage("Output");
    const LPARAM where = MAKELPARAM(12, 34);
    ::SendMessageA(output.Window(), WM_CONTEXTMENU, W(output.Window()), where);
    ASSERT_EQ(parent_.Heard(1524).size(), 1u);
    EXPECT_EQ(parent_.Heard(1524)[0].wParam, W(output.Window()));
    EXPECT_EQ(parent_.Heard(1524)[0].lParam, where);
    EXPECT_EQ(output.Count(WM_CONTEXTMENU), 1);
}

TEST_F(TabSheetTest, ARemovedPageIsLeftToTheCallerAndMayComeBack) {
    const auto [a, b] = AddPages<2>();
    const TestWindow free;
    ASSERT_TRUE(TabSheet::removePage(sheet_, 0, false));
    ASSERT_TRUE(a->Alive());
    EXPECT_FALSE(HasShownStyle(a->Window()));
    EXPECT_EQ(::GetWindowLongPtrA(a->Window(), GWLP_WNDPROC), ::GetWindowLongPtrA(free.Window(), GWLP_WNDPROC));
    EXPECT_TRUE(HasShownStyle(b->Window()));
    EXPECT_EQ(Titles(), Strings{"B"});
    ASSERT_TRUE(TabSheet::addWindowPage(sheet_, a->Window(), "Again", -1));
    EXPECT_FALSE(TabSheet::addWindowPage(sheet_, a->Window(), "Twice", -1));
    EXPECT_EQ(Titles(), (Strings{"B", "Again"}));
    ASSERT_TRUE(TabSheet::removePage(sheet_, 1, false));
    ::DestroyWindow(sheet_);
    EXPECT_TRUE(a->Alive());
    EXPECT_FALSE(b->Alive());
}

TEST_F(TabSheetTest, RemovingCanDestroyThePageAndTheOneBesideItIsShown) {
    const auto [a, b, c] = AddPages<3>();
    EXPECT_FALSE(TabSheet::removePage(sheet_, 3, true));
    EXPECT_FALSE(TabSheet::removePage(sheet_, -1, true));
    TabSheet::selectPage(sheet_, 1);
    ASSERT_TRUE(TabSheet::removePage(sheet_, 0, true));
    EXPECT_FALSE(a->Alive());
    EXPECT_TRUE(HasShownStyle(b->Window()));
    EXPECT_EQ(Selected(), 0);
    TabSheet::removePage(sheet_, 0, true);
    EXPECT_TRUE(HasShownStyle(c->Window()));
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
    const auto [a, b] = AddPages<2>();
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(a->Alive());
    EXPECT_TRUE(b->Alive());
    ASSERT_TRUE(::IsWindow(sheet_));
    EXPECT_TRUE(HasShownStyle(b->Window()));
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(b->Alive());
    EXPECT_FALSE(::IsWindow(sheet_));
    const HWND empty = MakeSheet(WS_CHILD);
    ::SendMessageA(empty, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(empty));
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

}  // namespace
}  // namespace corvex
