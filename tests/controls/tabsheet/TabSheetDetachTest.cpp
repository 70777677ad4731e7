// A page pulled out of the sheet, and back.
#include "tests/controls/tabsheet/TabSheetFixture.h"

namespace corvex {
namespace {

class TabSheetDetachTest : public TabSheetFixture {
protected:
    void AddThree() {
        a_ = AddPage("A").Window();
        b_ = AddPage("B").Window();
        c_ = AddPage("C").Window();
        TabSheet::selectPage(sheet_, 1);
    }
    bool IsDocked(HWND page, int index) const {
        return TabSheet::indexOfPage(sheet_, page) == index && ::GetAncestor(page, GA_PARENT) == Tabs() &&
               (StyleOfWindow(page) & (WS_CHILD | WS_POPUP)) == WS_CHILD && !::IsZoomed(page) && IsFitted(page);
    }
    HWND a_ = nullptr, b_ = nullptr, c_ = nullptr;
};

TEST_F(TabSheetDetachTest, ADoubleClickOnTheCaptionPullsThePageOut) {
    for (const bool frame : {false, true}) {
        if (frame) MakeFrame();
        AddThree();
        DoubleClickCaption();
        EXPECT_EQ(TabSheet::detachedPage(sheet_), b_);
        EXPECT_EQ(StyleOfWindow(b_) & (WS_CHILD | WS_POPUP), static_cast<DWORD>(WS_POPUP));
        EXPECT_EQ(::GetAncestor(b_, GA_PARENT), ::GetDesktopWindow());
        EXPECT_EQ(::GetWindow(b_, GW_OWNER), nullptr);
        EXPECT_TRUE(::IsZoomed(b_));
        EXPECT_TRUE(::IsWindowVisible(b_));
        EXPECT_EQ(Titles(), (Strings{"A", "C"}));
        EXPECT_EQ(Selected(), -1);
        EXPECT_FALSE(::IsZoomed(sheet_));
    }
}

TEST_F(TabSheetDetachTest, OnlyTheCaptionDoes) {
    AddThree();
    for (const WPARAM part : {HTMENU, HTBORDER, HTTOP}) {
        ::SendMessageA(sheet_, WM_NCLBUTTONDBLCLK, part, 0);
        EXPECT_EQ(TabSheet::detachedPage(sheet_), nullptr);
    }
    EXPECT_TRUE(IsDocked(b_, 1));
}

TEST_F(TabSheetDetachTest, DockingBringsItBackToItsPlaceUnderItsTitle) {
    AddThree();
    ASSERT_TRUE(TabSheet::detach(sheet_));
    ASSERT_TRUE(TabSheet::dock(sheet_));
    EXPECT_EQ(TabSheet::detachedPage(sheet_), nullptr);
    EXPECT_TRUE(IsDocked(b_, 1));
    EXPECT_TRUE(HasShownStyle(b_));
    EXPECT_EQ(Titles(), (Strings{"A", "B", "C"}));
    EXPECT_EQ(Selected(), 1);
    EXPECT_EQ(TextOfWindow(sheet_), "B");
    EXPECT_FALSE(TabSheet::dock(sheet_));
}

TEST_F(TabSheetDetachTest, ItMayBePulledOutAgainAndAgain) {
    AddThree();
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(TabSheet::detach(sheet_));
        EXPECT_TRUE(::IsZoomed(b_));
        ASSERT_TRUE(TabSheet::dock(sheet_));
        EXPECT_TRUE(IsDocked(b_, 1));
    }
}

TEST_F(TabSheetDetachTest, AClickOnAnyTabDocksIt) {
    for (const int tab : {0, 1}) {
        AddThree();
        TabSheet::detach(sheet_);
        ClickTab(tab);
        const HWND chosen = tab == 0 ? a_ : c_;
        EXPECT_TRUE(IsDocked(b_, 1));
        EXPECT_FALSE(HasShownStyle(b_));
        EXPECT_TRUE(HasShownStyle(chosen));
        EXPECT_EQ(TextOfWindow(sheet_), tab == 0 ? "A" : "C");
        EXPECT_EQ(Selected(), tab == 0 ? 0 : 2);
        MakeFrame();
    }
}

TEST_F(TabSheetDetachTest, SelectingAPageDocksIt) {
    AddThree();
    TabSheet::detach(sheet_);
    EXPECT_TRUE(TabSheet::selectPage(sheet_, 1));  // C, as the tabs stand now
    EXPECT_TRUE(HasShownStyle(c_));
    EXPECT_TRUE(IsDocked(b_, 1));
    EXPECT_FALSE(HasShownStyle(b_));
}

TEST_F(TabSheetDetachTest, SelectingItselfDocksAndShowsIt) {
    AddThree();
    TabSheet::detach(sheet_);
    EXPECT_TRUE(TabSheet::selectPageByWindow(sheet_, b_));
    EXPECT_TRUE(IsDocked(b_, 1));
    EXPECT_TRUE(HasShownStyle(b_));
    EXPECT_EQ(Selected(), 1);
}

TEST_F(TabSheetDetachTest, ASecondDoubleClickDocksIt) {
    AddThree();
    DoubleClickCaption();
    DoubleClickCaption();
    EXPECT_TRUE(IsDocked(b_, 1));
    EXPECT_TRUE(HasShownStyle(b_));
}

TEST_F(TabSheetDetachTest, TheOnlyPageMayBePulledOut) {
    const HWND page = AddPage("A").Window();
    DoubleClickCaption();
    ASSERT_EQ(TabSheet::detachedPage(sheet_), page);
    ASSERT_TRUE(::IsWindow(sheet_));
    EXPECT_EQ(TabSheet::pageCount(sheet_), 0);
    DoubleClickCaption();
    EXPECT_TRUE(IsDocked(page, 0));
    EXPECT_TRUE(HasShownStyle(page));
}

TEST_F(TabSheetDetachTest, NothingIsPulledOutOfAnEmptySheet) {
    EXPECT_FALSE(TabSheet::detach(sheet_));
    DoubleClickCaption();
    EXPECT_TRUE(::IsWindow(sheet_));
}

TEST_F(TabSheetDetachTest, ANewSizeOfTheSheetLeavesItAlone) {
    AddThree();
    TabSheet::detach(sheet_);
    const RECT before = PlaceOf(b_);
    ::MoveWindow(sheet_, 0, 0, 200, 200, FALSE);
    const RECT after = PlaceOf(b_);
    EXPECT_TRUE(::EqualRect(&before, &after));
    EXPECT_TRUE(IsFitted(a_));
    TabSheet::dock(sheet_);
    EXPECT_TRUE(IsFitted(b_));
}

TEST_F(TabSheetDetachTest, ItGoesToTheEndWhenItsPlaceIsGone) {
    AddThree();
    TabSheet::selectPage(sheet_, 2);
    TabSheet::detach(sheet_);
    TabSheet::removePage(sheet_, 0, true);
    EXPECT_EQ(TabSheet::detachedPage(sheet_), c_);
    TabSheet::dock(sheet_);
    EXPECT_EQ(Titles(), (Strings{"B", "C"}));
}

TEST_F(TabSheetDetachTest, APageAddedMeanwhileDoesNotDockIt) {
    AddThree();
    TabSheet::detach(sheet_);
    AddPage("D");
    EXPECT_EQ(TabSheet::detachedPage(sheet_), b_);
    TabSheet::dock(sheet_);
    EXPECT_EQ(Titles(), (Strings{"A", "B", "C", "D"}));
}

TEST_F(TabSheetDetachTest, ItComesBackWhenTheLastOtherPageGoes) {
    AddThree();
    TabSheet::detach(sheet_);
    TabSheet::removePage(sheet_, 0, true);
    EXPECT_EQ(TabSheet::detachedPage(sheet_), b_);
    TabSheet::removePage(sheet_, 0, true);
    ASSERT_TRUE(::IsWindow(sheet_));
    EXPECT_TRUE(IsDocked(b_, 0));
    EXPECT_TRUE(HasShownStyle(b_));
}

TEST_F(TabSheetDetachTest, KeepsATitleOf149Characters) {
    AddPage(std::string(200, 'x').c_str());
    TabSheet::detach(sheet_);
    TabSheet::dock(sheet_);
    EXPECT_EQ(Titles(), Strings{std::string(149, 'x')});
}

TEST_F(TabSheetDetachTest, ClosingTheSheetTakesItFirst) {
    AddThree();
    TabSheet::detach(sheet_);
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(b_));
    EXPECT_EQ(TabSheet::detachedPage(sheet_), nullptr);
    EXPECT_TRUE(HasShownStyle(c_));
    EXPECT_EQ(Titles(), (Strings{"A", "C"}));
}

TEST_F(TabSheetDetachTest, ClosingTheSheetOfAnOnlyPageEndsBoth) {
    const HWND page = AddPage("A").Window();
    TabSheet::detach(sheet_);
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(page));
    EXPECT_FALSE(::IsWindow(sheet_));
}

TEST_F(TabSheetDetachTest, ItsContextMenuIsStillAskedOfTheSheetsParent) {
    AddThree();
    TabSheet::detach(sheet_);
    parent_.listenFor = {1524};
    ::SendMessageA(b_, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(b_), 5);
    ASSERT_EQ(parent_.heard.size(), 1u);
    EXPECT_EQ(parent_.heard[0].lParam, 5);
}

}  // namespace
}  // namespace corvex
