// Sheet, pages and tab control go in any order, and from inside each other's handlers. The program's heap takes the
// pages of deleted objects away, so that a call on one of them ends it.
#include "controls/window/GdiObjects.h"
#include "tests/controls/tabsheet/TabSheetFixture.h"

namespace corvex {
namespace {

class TabSheetLifetimeTest : public TabSheetFixture {
protected:
    // On the first `message`, runs `action` and lets the message go on.
    static void Once(TestWindow& window, UINT message, std::function<void()> action) {
        window.handler = [&window, message, action](UINT is, WPARAM, LPARAM, LRESULT&) {
            if (is != message) return false;
            const auto run = action;
            window.handler = nullptr;
            run();
            return true;
        };
    }
    void DestroySheet() { ::DestroyWindow(sheet_); }
};

TEST_F(TabSheetLifetimeTest, APageDestroyedFromOutsideTakesItsTabAlong) {
    AddPage("A");
    TestWindow& b = AddPage("B");
    ::DestroyWindow(b.Window());
    EXPECT_EQ(Titles(), Strings{"A"});
    Pump();
    EXPECT_TRUE(::IsWindow(sheet_));
}

TEST_F(TabSheetLifetimeTest, APageThatTellsNobodyOfItsEndTakesItsTabAlongToo) {
    AddPage("A");
    TestWindow& b = AddPage("B");
    ::SetWindowLongPtrA(b.Window(), GWL_EXSTYLE, WS_EX_NOPARENTNOTIFY);
    ::DestroyWindow(b.Window());
    EXPECT_EQ(Titles(), Strings{"A"});
}

TEST_F(TabSheetLifetimeTest, ANoticeOfItsEndIsEnough) {
    AddPage("A");
    TestWindow& b = AddPage("B");
    ::SendMessageA(sheet_, WM_PARENTNOTIFY, WM_CREATE, reinterpret_cast<LPARAM>(b.Window()));
    EXPECT_EQ(TabSheet::pageCount(sheet_), 2);
    ::SendMessageA(sheet_, WM_PARENTNOTIFY, MAKEWPARAM(WM_DESTROY, 9), reinterpret_cast<LPARAM>(b.Window()));
    EXPECT_EQ(Titles(), Strings{"A"});
}

TEST_F(TabSheetLifetimeTest, AfterThePageOnShowAnotherIsShown) {
    TestWindow& a = AddPage("A");
    TestWindow& b = AddPage("B");
    ::DestroyWindow(a.Window());
    Pump();
    EXPECT_TRUE(HasShownStyle(b.Window()));
    EXPECT_EQ(TextOfWindow(sheet_), "B");
}

TEST_F(TabSheetLifetimeTest, TheLastPageDestroyedFromOutsideEndsTheSheet) {
    TestWindow& a = AddPage("A");
    ::DestroyWindow(a.Window());
    Pump();
    EXPECT_FALSE(::IsWindow(sheet_));
    EXPECT_EQ(parent_.CountOf(TSN_DESTROYED), 1);
}

TEST_F(TabSheetLifetimeTest, ADetachedPageDestroyedFromOutsideIsForgotten) {
    TestWindow& a = AddPage("A");
    TestWindow& b = AddPage("B");
    TabSheet::detach(sheet_);
    ::DestroyWindow(a.Window());
    EXPECT_EQ(TabSheet::detachedPage(sheet_), nullptr);
    EXPECT_FALSE(TabSheet::dock(sheet_));
    Pump();
    EXPECT_TRUE(HasShownStyle(b.Window()));
    TabSheet::detach(sheet_);
    ::DestroyWindow(b.Window());
    Pump();
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetLifetimeTest, TheSheetTakesItsPagesAlong) {
    TestWindow& a = AddPage("A");
    TestWindow& b = AddPage("B");
    TabSheet::detach(sheet_);
    DestroySheet();
    EXPECT_FALSE(a.Alive());
    EXPECT_FALSE(b.Alive());
    Pump();
    EXPECT_EQ(parent_.CountOf(TSN_DESTROYED), 1);
}

TEST_F(TabSheetLifetimeTest, WithoutItsTabControlTheSheetEnds) {
    TestWindow& a = AddPage("A");
    AddPage("B");
    ::DestroyWindow(Tabs());
    EXPECT_FALSE(a.Alive());
    EXPECT_EQ(TabSheet::pageCount(sheet_), 0);
    EXPECT_FALSE(TabSheet::selectPage(sheet_, 0));
    EXPECT_FALSE(TabSheet::detach(sheet_));
    TestWindow late;
    EXPECT_FALSE(TabSheet::addWindowPage(sheet_, late.Window(), "late", -1));
    ::MoveWindow(sheet_, 0, 0, 50, 50, FALSE);
    Pump();
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetLifetimeTest, WithoutItsTabControlADetachedPageEndsToo) {
    TestWindow& a = AddPage("A");
    TabSheet::detach(sheet_);
    ::DestroyWindow(Tabs());
    Pump();
    EXPECT_FALSE(a.Alive());
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetLifetimeTest, AParentThatGoesTakesAllAlong) {
    TestWindow& a = AddPage("A");
    ::DestroyWindow(parent_.Window());
    EXPECT_FALSE(a.Alive());
    EXPECT_FALSE(::IsWindow(sheet_));
    EXPECT_EQ(parent_.CountOf(TSN_DESTROYED), 1);
}

TEST_F(TabSheetLifetimeTest, AnyNotificationMayDestroyTheSheet) {
    for (const UINT code : {UINT{TSN_READY}, UINT{TSN_RESIZED}, UINT{TSN_DESTROYED}}) {
        if (!::IsWindow(sheet_)) sheet_ = MakeSheet(WS_CHILD | WS_VISIBLE);
        AddPage("A");
        AddPage("B");
        parent_.answer = [&](const Notice& notice) {
            if (notice.code == code) ::DestroyWindow(notice.from);
            return LRESULT{0};
        };
        parent_.notices.clear();
        if (code == TSN_READY) ::SendMessageA(sheet_, 0x8000, 0, 0);
        if (code == TSN_RESIZED) ::MoveWindow(sheet_, 0, 0, 77, 77, FALSE);
        if (code == TSN_DESTROYED) DestroySheet();
        parent_.answer = nullptr;
        EXPECT_FALSE(::IsWindow(sheet_)) << code;
        EXPECT_EQ(parent_.CountOf(TSN_DESTROYED), 1) << code;
    }
}

TEST_F(TabSheetLifetimeTest, ThePageSelectedMayDestroyTheSheet) {
    for (const UINT message : {UINT{WM_SHOWWINDOW}, UINT{WM_SETFOCUS}, UINT{WM_SIZE}}) {
        if (!::IsWindow(sheet_)) sheet_ = MakeSheet(WS_CHILD | WS_VISIBLE);
        ::ShowWindow(parent_.Window(), SW_SHOW);
        AddPage("A");
        TestWindow& b = AddPage("B");
        ::MoveWindow(b.Window(), 0, 0, 7, 7, FALSE);
        Once(b, message, [this] { DestroySheet(); });
        EXPECT_FALSE(TabSheet::selectPage(sheet_, 1)) << message;
        EXPECT_FALSE(::IsWindow(sheet_)) << message;
    }
}

TEST_F(TabSheetLifetimeTest, ThePageLeftMayDestroyTheSheet) {
    TestWindow& a = AddPage("A");
    AddPage("B");
    Once(a, WM_SHOWWINDOW, [this] { DestroySheet(); });
    ClickTab(1);
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetLifetimeTest, ThePageSelectedMayDestroyItself) {
    TestWindow& a = AddPage("A");
    TestWindow& b = AddPage("B");
    Once(b, WM_SHOWWINDOW, [&b] { ::DestroyWindow(b.Window()); });
    EXPECT_FALSE(TabSheet::selectPage(sheet_, 1));
    Pump();
    EXPECT_EQ(Titles(), Strings{"A"});
    EXPECT_TRUE(HasShownStyle(a.Window()));
}

TEST_F(TabSheetLifetimeTest, APageMayDestroySheetOrItselfWhenTheSizeChanges) {
    TestWindow& a = AddPage("A");
    TestWindow& b = AddPage("B");
    AddPage("C");
    Once(b, WM_SIZE, [&b] { ::DestroyWindow(b.Window()); });
    ::MoveWindow(sheet_, 0, 0, 200, 200, FALSE);
    EXPECT_EQ(Titles(), (Strings{"A", "C"}));
    Once(a, WM_SIZE, [this] { DestroySheet(); });
    parent_.notices.clear();
    ::MoveWindow(sheet_, 0, 0, 300, 300, FALSE);
    EXPECT_FALSE(::IsWindow(sheet_));
    EXPECT_EQ(parent_.CountOf(TSN_RESIZED), 0);
}

TEST_F(TabSheetLifetimeTest, AWindowMayDestroyTheSheetWhileItBecomesAPage) {
    TestWindow page(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    Once(page, WM_SHOWWINDOW, [this] { DestroySheet(); });
    EXPECT_FALSE(TabSheet::addWindowPage(sheet_, page.Window(), "A", -1));
    EXPECT_FALSE(::IsWindow(sheet_));
}

INT_PTR CALLBACK DestroysSheet(HWND, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) ::DestroyWindow(reinterpret_cast<HWND>(lParam));
    return FALSE;
}

TEST_F(TabSheetLifetimeTest, ADialogMayDestroyTheSheetWhileItBecomesAPage) {
    EXPECT_EQ(TabSheet::addDialogPage(sheet_, &DestroysSheet, ::GetModuleHandleA(nullptr), 102, "A", -1,
                                      reinterpret_cast<LPARAM>(sheet_), true),
              nullptr);
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetLifetimeTest, APageMayDestroyTheSheetWhileItIsDetachedOrDocked) {
    for (const bool docking : {false, true}) {
        if (!::IsWindow(sheet_)) sheet_ = MakeSheet(WS_CHILD | WS_VISIBLE);
        TestWindow& a = AddPage("A");
        AddPage("B");
        if (docking) TabSheet::detach(sheet_);
        Once(a, WM_SHOWWINDOW, [this] { DestroySheet(); });
        if (docking) {
            EXPECT_FALSE(TabSheet::dock(sheet_));
        } else {
            EXPECT_FALSE(TabSheet::detach(sheet_));
        }
        EXPECT_FALSE(::IsWindow(sheet_));
        EXPECT_FALSE(a.Alive());
    }
}

TEST_F(TabSheetLifetimeTest, APageMayDestroyItselfOnTheWayBack) {
    TestWindow& a = AddPage("A");
    TestWindow& b = AddPage("B");
    TabSheet::detach(sheet_);
    Once(a, WM_SHOWWINDOW, [&a] { ::DestroyWindow(a.Window()); });
    EXPECT_FALSE(TabSheet::dock(sheet_));
    Pump();
    EXPECT_EQ(Titles(), Strings{"B"});
    EXPECT_TRUE(HasShownStyle(b.Window()));
}

TEST_F(TabSheetLifetimeTest, APageThatIsClosedMayDestroyTheSheetFirst) {
    TestWindow& a = AddPage("A");
    AddPage("B");
    Once(a, WM_DESTROY, [this] { DestroySheet(); });
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(sheet_));
    EXPECT_FALSE(a.Alive());
}

WNDPROC g_next = nullptr;
int g_between = 0;
LRESULT CALLBACK Between(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP || message == WM_CONTEXTMENU) ++g_between;
    return ::CallWindowProcA(g_next, window, message, wParam, lParam);
}
// Counts what passes to the window's procedure.
void PutBetween(HWND window) {
    g_between = 0;
    g_next = reinterpret_cast<WNDPROC>(::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Between)));
}

TEST_F(TabSheetLifetimeTest, WhoeverIsAskedForAContextMenuMayDestroyThePage) {
    TestWindow asked;
    const HWND sheet = ::CreateWindowExA(0, kTabSheetClass, "", WS_CHILD, 0, 0, 99, 99, asked.Window(), nullptr,
                                         ::GetModuleHandleA(nullptr), nullptr);
    TestWindow page;
    PutBetween(page.Window());
    ASSERT_TRUE(TabSheet::addWindowPage(sheet, page.Window(), "A", -1));
    ::SendMessageA(page.Window(), WM_CONTEXTMENU, 0, 0);
    EXPECT_EQ(g_between, 1);
    Once(asked, TSM_PAGECONTEXTMENU, [&page] { ::DestroyWindow(page.Window()); });
    ::SendMessageA(page.Window(), WM_CONTEXTMENU, 0, 0);
    EXPECT_FALSE(page.Alive());
    EXPECT_EQ(g_between, 1);
}

TEST_F(TabSheetLifetimeTest, APageMayChooseAnotherWhenItIsShown) {
    AddPage("A");
    TestWindow& b = AddPage("B");
    TestWindow& c = AddPage("C");
    Once(b, WM_SHOWWINDOW, [this] { TabSheet::selectPage(sheet_, 2); });
    EXPECT_FALSE(TabSheet::selectPage(sheet_, 1));
    EXPECT_FALSE(HasShownStyle(b.Window()));
    EXPECT_TRUE(HasShownStyle(c.Window()));
    EXPECT_EQ(TextOfWindow(sheet_), "C");
    EXPECT_EQ(Selected(), 2);
}

TEST_F(TabSheetLifetimeTest, AProcedureInFrontOfThePagesIsNotCutOff) {
    TestWindow& a = AddPage("A");
    AddPage("B");
    g_between = 0;
    g_next =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtrA(a.Window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Between)));
    parent_.listenFor = {TSM_PAGECONTEXTMENU};
    TabSheet::removePage(sheet_, 0, false);
    ::SendMessageA(a.Window(), WM_APP, 0, 0);
    EXPECT_EQ(g_between, 1);
    ::SendMessageA(a.Window(), WM_CONTEXTMENU, 0, 0);
    EXPECT_EQ(a.Count(WM_APP), 1);
    EXPECT_TRUE(parent_.heard.empty());
    ASSERT_TRUE(TabSheet::addWindowPage(sheet_, a.Window(), "again", -1));
    ::SendMessageA(a.Window(), WM_CONTEXTMENU, 0, 0);
    EXPECT_EQ(parent_.heard.size(), 1u);
    ::DestroyWindow(a.Window());
    EXPECT_EQ(Titles(), Strings{"B"});
}

TEST_F(TabSheetLifetimeTest, SheetsLeaveNoObjectBehind) {
    const std::size_t before = LiveGdiObjects();
    for (int i = 0; i < 20; ++i) {
        const HWND sheet = MakeSheet(WS_CHILD);
        EXPECT_GT(LiveGdiObjects(), before);
        ::DestroyWindow(sheet);
    }
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
