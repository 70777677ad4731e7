// Sheet, pages and tab control go in any order, and from inside each other's handlers. The program's heap takes the
// pages of deleted objects away, so that a call on one of them ends it.
#include "controls/window/GdiObjects.h"
#include "tests/controls/tabsheet/TabSheetFixture.h"

namespace corvex {
namespace {

class TabSheetLifetimeTest : public TabSheetFixture {
protected:
    void DestroySheet() { ::DestroyWindow(sheet_); }
    static std::function<void()> EndOf(TestWindow* window) {
        return [window] { ::DestroyWindow(window->Window()); };
    }
    void MakeSheetAgain() {
        if (!::IsWindow(sheet_)) sheet_ = MakeSheet(WS_CHILD | WS_VISIBLE);
    }
};

TEST_F(TabSheetLifetimeTest, APageDestroyedFromOutsideTakesItsTabAlongEvenIfItTellsNobody) {
    const auto [a, b, c] = AddPages<3>();
    ::DestroyWindow(b->Window());
    EXPECT_EQ(Titles(), (Strings{"A", "C"}));
    ::SetWindowLongPtrA(c->Window(), GWL_EXSTYLE, WS_EX_NOPARENTNOTIFY);
    ::DestroyWindow(c->Window());
    EXPECT_EQ(Titles(), Strings{"A"});
    Pump();
    EXPECT_TRUE(::IsWindow(sheet_));
}

TEST_F(TabSheetLifetimeTest, ANoticeOfItsEndIsEnough) {
    const auto [a, b] = AddPages<2>();
    ::SendMessageA(sheet_, WM_PARENTNOTIFY, WM_CREATE, L(b->Window()));
    EXPECT_EQ(TabSheet::pageCount(sheet_), 2);
    ::SendMessageA(sheet_, WM_PARENTNOTIFY, MAKEWPARAM(WM_DESTROY, 9), L(b->Window()));
    EXPECT_EQ(Titles(), Strings{"A"});
}

TEST_F(TabSheetLifetimeTest, AfterThePageOnShowAnotherIsShownAndAfterTheLastTheSheetEnds) {
    const auto [a, b] = AddPages<2>();
    ::DestroyWindow(a->Window());
    Pump();
    EXPECT_TRUE(HasShownStyle(b->Window()));
    EXPECT_EQ(TextOfWindow(sheet_), "B");
    ::DestroyWindow(b->Window());
    Pump();
    EXPECT_FALSE(::IsWindow(sheet_));
    EXPECT_EQ(parent_.CountOf(TSN_DESTROYED), 1);
}

TEST_F(TabSheetLifetimeTest, ADetachedPageDestroyedFromOutsideIsForgotten) {
    const auto [a, b] = AddPages<2>();
    TabSheet::detach(sheet_);
    ::DestroyWindow(a->Window());
    EXPECT_EQ(TabSheet::detachedPage(sheet_), nullptr);
    EXPECT_FALSE(TabSheet::dock(sheet_));
    Pump();
    EXPECT_TRUE(HasShownStyle(b->Window()));
    TabSheet::detach(sheet_);
    ::DestroyWindow(b->Window());
    Pump();
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetLifetimeTest, SheetAndParentTakeThePagesAlong) {
    for (const bool isParent : {false, true}) {
        MakeSheetAgain();
        parent_.notices.clear();
        const auto [a, b] = AddPages<2>();
        TabSheet::detach(sheet_);
        ::DestroyWindow(isParent ? parent_.Window() : sheet_);
        EXPECT_FALSE(a->Alive());
        EXPECT_FALSE(b->Alive());
        EXPECT_FALSE(::IsWindow(sheet_));
        Pump();
        EXPECT_EQ(parent_.CountOf(TSN_DESTROYED), 1) << isParent;
    }
}

TEST_F(TabSheetLifetimeTest, WithoutItsTabControlTheSheetEndsAndItsPagesToo) {
    for (const bool isDetached : {false, true}) {
        MakeSheetAgain();
        TestWindow& page = AddPage("A");
        if (isDetached) TabSheet::detach(sheet_);
        ::DestroyWindow(Tabs());
        EXPECT_EQ(TabSheet::pageCount(sheet_), 0);
        if (!isDetached) {
            EXPECT_FALSE(page.Alive());
            EXPECT_FALSE(TabSheet::selectPage(sheet_, 0));
            EXPECT_FALSE(TabSheet::detach(sheet_));
            EXPECT_FALSE(TabSheet::addWindowPage(sheet_, TestWindow().Window(), "late", -1));
            ::MoveWindow(sheet_, 0, 0, 50, 50, FALSE);
        }
        Pump();
        EXPECT_FALSE(page.Alive());
        EXPECT_FALSE(::IsWindow(sheet_));
    }
}

TEST_F(TabSheetLifetimeTest, AnyNotificationMayDestroyTheSheet) {
    for (const UINT code : {UINT{TSN_READY}, UINT{TSN_RESIZED}, UINT{TSN_DESTROYED}}) {
        MakeSheetAgain();
        AddPages<2>();
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

// Whose handler of which message ends the sheet, and in what.
TEST_F(TabSheetLifetimeTest, APageMayDestroyTheSheetFromAnyHandler) {
    const struct {
        const char* name;
        std::size_t page;
        UINT message;
        std::function<void(HWND)> work;
        bool isPulledOut = false;
    } cases[] = {
        {"selected, shown", 1, WM_SHOWWINDOW, [](HWND sheet) { EXPECT_FALSE(TabSheet::selectPage(sheet, 1)); }},
        {"selected, focused", 1, WM_SETFOCUS, [](HWND sheet) { EXPECT_FALSE(TabSheet::selectPage(sheet, 1)); }},
        {"selected, fitted", 1, WM_SIZE, [](HWND sheet) { EXPECT_FALSE(TabSheet::selectPage(sheet, 1)); }},
        {"left", 0, WM_SHOWWINDOW, [this](HWND) { ClickTab(1); }},
        {"resized", 0, WM_SIZE, [](HWND sheet) { ::MoveWindow(sheet, 0, 0, 310, 310, FALSE); }},
        {"detached", 0, WM_SHOWWINDOW, [](HWND sheet) { EXPECT_FALSE(TabSheet::detach(sheet)); }},
        {"docked", 0, WM_SHOWWINDOW, [](HWND sheet) { EXPECT_FALSE(TabSheet::dock(sheet)); }, true},
        {"closed", 0, WM_DESTROY, [](HWND sheet) { ::SendMessageA(sheet, WM_CLOSE, 0, 0); }},
    };
    ::ShowWindow(parent_.Window(), SW_SHOW);
    for (const auto& end : cases) {
        SCOPED_TRACE(end.name);
        MakeSheetAgain();
        const auto pages = AddPages<2>();
        ::MoveWindow(pages[1]->Window(), 0, 0, 7, 7, FALSE);
        if (end.isPulledOut) TabSheet::detach(sheet_);
        Once(*pages[end.page], end.message, [this] { DestroySheet(); });
        parent_.notices.clear();
        end.work(sheet_);
        EXPECT_FALSE(::IsWindow(sheet_));
        EXPECT_FALSE(pages[0]->Alive());
        EXPECT_EQ(parent_.CountOf(TSN_RESIZED), 0);
    }
}

TEST_F(TabSheetLifetimeTest, APageMayDestroyItselfWhenItIsShownResizedOrDocked) {
    const auto [a, b, c, d] = AddPages<4>();
    Once(*b, WM_SHOWWINDOW, EndOf(b));
    EXPECT_FALSE(TabSheet::selectPage(sheet_, 1));
    Pump();
    EXPECT_EQ(Titles(), (Strings{"A", "C", "D"}));
    EXPECT_TRUE(HasShownStyle(c->Window()) || HasShownStyle(a->Window()));
    Once(*d, WM_SIZE, EndOf(d));
    ::MoveWindow(sheet_, 0, 0, 200, 200, FALSE);
    EXPECT_EQ(Titles(), (Strings{"A", "C"}));
    TabSheet::selectPage(sheet_, 0);
    TabSheet::detach(sheet_);
    Once(*a, WM_SHOWWINDOW, EndOf(a));
    EXPECT_FALSE(TabSheet::dock(sheet_));
    Pump();
    EXPECT_EQ(Titles(), Strings{"C"});
    EXPECT_TRUE(HasShownStyle(c->Window()));
}

INT_PTR CALLBACK DestroysSheet(HWND, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) ::DestroyWindow(reinterpret_cast<HWND>(lParam));
    return FALSE;
}

TEST_F(TabSheetLifetimeTest, AWindowOrADialogMayDestroyTheSheetWhileItBecomesAPage) {
    TestWindow page(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    Once(page, WM_SHOWWINDOW, [this] { DestroySheet(); });
    EXPECT_FALSE(TabSheet::addWindowPage(sheet_, page.Window(), "A", -1));
    EXPECT_FALSE(::IsWindow(sheet_));
    MakeSheetAgain();
    EXPECT_EQ(
        TabSheet::addDialogPage(sheet_, &DestroysSheet, ::GetModuleHandleA(nullptr), 102, "A", -1, L(sheet_), true),
        nullptr);
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetLifetimeTest, WhoeverIsAskedForAContextMenuMayDestroyThePage) {
    TestWindow asked;
    const HWND sheet = ::CreateWindowExA(0, kTabSheetClass, "", WS_CHILD, 0, 0, 99, 99, asked.Window(), nullptr,
                                         ::GetModuleHandleA(nullptr), nullptr);
    TestWindow page;
    ASSERT_TRUE(TabSheet::addWindowPage(sheet, page.Window(), "A", -1));
    ::SendMessageA(page.Window(), WM_CONTEXTMENU, 0, 0);
    EXPECT_EQ(page.Count(WM_CONTEXTMENU), 1);
    Once(asked, TSM_PAGECONTEXTMENU, EndOf(&page));
    ::SendMessageA(page.Window(), WM_CONTEXTMENU, 0, 0);
    EXPECT_FALSE(page.Alive());
    EXPECT_EQ(page.Count(WM_CONTEXTMENU), 1);
}

TEST_F(TabSheetLifetimeTest, APageMayChooseAnotherWhenItIsShown) {
    const auto [a, b, c] = AddPages<3>();
    Once(*b, WM_SHOWWINDOW, [this] { TabSheet::selectPage(sheet_, 2); });
    EXPECT_FALSE(TabSheet::selectPage(sheet_, 1));
    EXPECT_FALSE(HasShownStyle(b->Window()));
    EXPECT_TRUE(HasShownStyle(c->Window()));
    EXPECT_EQ(TextOfWindow(sheet_), "C");
    EXPECT_EQ(Selected(), 2);
}

TEST_F(TabSheetLifetimeTest, AProcedureInFrontOfThePagesIsNotCutOff) {
    const auto [a, b] = AddPages<2>();
    const WindowSpy between(a->Window());
    TabSheet::removePage(sheet_, 0, false);
    ::SendMessageA(a->Window(), WM_APP, 0, 0);
    EXPECT_EQ(between.Count(WM_APP), 1);
    EXPECT_EQ(a->Count(WM_APP), 1);
    ::SendMessageA(a->Window(), WM_CONTEXTMENU, 0, 0);
    EXPECT_TRUE(parent_.Heard(TSM_PAGECONTEXTMENU).empty());
    ASSERT_TRUE(TabSheet::addWindowPage(sheet_, a->Window(), "again", -1));
    ::SendMessageA(a->Window(), WM_CONTEXTMENU, 0, 0);
    EXPECT_EQ(parent_.Heard(TSM_PAGECONTEXTMENU).size(), 1u);
    ::DestroyWindow(a->Window());
    EXPECT_EQ(Titles(), Strings{"B"});
}

TEST_F(TabSheetLifetimeTest, SheetsLeaveNoObjectBehind) {
    const std::size_t before = LiveGdiObjects();
    const HWND sheet = MakeSheet(WS_CHILD);
    EXPECT_GT(LiveGdiObjects(), before);
    ::DestroyWindow(sheet);
    EXPECT_EQ(LiveGdiObjects(), before);
}

}  // namespace
}  // namespace corvex
