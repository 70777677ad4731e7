// A page pulled out of the sheet, and back.
#include "tests/controls/tabsheet/TabSheetFixture.h"

namespace corvex {
namespace {

class TabSheetDetachTest : public TabSheetFixture {
protected:
    void AddThree() {
        const auto [a, b, c] = AddPages<3>();
        a_ = a->Window();
        b_ = b->Window();
        c_ = c->Window();
        TabSheet::selectPage(sheet_, 1);
    }
    void PullOut() {
        AddThree();
        ASSERT_TRUE(TabSheet::detach(sheet_));
    }
    bool IsDocked(HWND page, int index) const {
        return TabSheet::indexOfPage(sheet_, page) == index && ::GetAncestor(page, GA_PARENT) == Tabs() &&
               (StyleOfWindow(page) & (WS_CHILD | WS_POPUP)) == WS_CHILD && !::IsZoomed(page) && IsFitted(page);
    }
    bool IsDockedOnShow(HWND page, int index) const { return IsDocked(page, index) && HasShownStyle(page); }
    HWND a_ = nullptr, b_ = nullptr, c_ = nullptr;
};

TEST_F(TabSheetDetachTest, ADoubleClickOnTheCaptionPullsThePageOutAndAnotherDocksIt) {
    for (const bool frame : {false, true}) {
        if (frame) MakeFrame();
        AddThree();
        for (const WPARAM part : {HTMENU, HTBORDER, HTTOP}) {
            ::SendMessageA(sheet_, WM_NCLBUTTONDBLCLK, part, 0);
            EXPECT_EQ(TabSheet::detachedPage(sheet_), nullptr);
        }
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
        DoubleClickCaption();
        EXPECT_TRUE(IsDockedOnShow(b_, 1));
    }
}

TEST_F(TabSheetDetachTest, DockingBringsItBackToItsPlaceUnderItsTitleAgainAndAgain) {
    AddThree();
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(TabSheet::detach(sheet_));
        EXPECT_TRUE(::IsZoomed(b_));
        ASSERT_TRUE(TabSheet::dock(sheet_));
        EXPECT_EQ(TabSheet::detachedPage(sheet_), nullptr);
        EXPECT_TRUE(IsDockedOnShow(b_, 1));
        EXPECT_EQ(Titles(), (Strings{"A", "B", "C"}));
        EXPECT_EQ(Selected(), 1);
        EXPECT_EQ(TextOfWindow(sheet_), "B");
        EXPECT_FALSE(TabSheet::dock(sheet_));
    }
}

TEST_F(TabSheetDetachTest, AClickOnAnyTabDocksIt) {
    for (const int tab : {0, 1}) {
        PullOut();
        ClickTab(tab);
        EXPECT_TRUE(IsDocked(b_, 1));
        EXPECT_FALSE(HasShownStyle(b_));
        EXPECT_TRUE(HasShownStyle(tab == 0 ? a_ : c_));
        EXPECT_EQ(TextOfWindow(sheet_), tab == 0 ? "A" : "C");
        EXPECT_EQ(Selected(), tab == 0 ? 0 : 2);
        MakeFrame();
    }
}

TEST_F(TabSheetDetachTest, SelectingAPageOrItselfDocksIt) {
    PullOut();
    EXPECT_TRUE(TabSheet::selectPage(sheet_, 1));  // C, as the tabs stand now
    EXPECT_TRUE(HasShownStyle(c_));
    EXPECT_TRUE(IsDocked(b_, 1));
    EXPECT_FALSE(HasShownStyle(b_));
    TabSheet::selectPage(sheet_, 1);
    TabSheet::detach(sheet_);
    EXPECT_TRUE(TabSheet::selectPageByWindow(sheet_, b_));
    EXPECT_TRUE(IsDockedOnShow(b_, 1));
    EXPECT_EQ(Selected(), 1);
}

TEST_F(TabSheetDetachTest, TheOnlyPageMayBePulledOutAndNothingOfAnEmptySheet) {
    EXPECT_FALSE(TabSheet::detach(sheet_));
    DoubleClickCaption();
    ASSERT_TRUE(::IsWindow(sheet_));
    const HWND page = AddPage("A").Window();
    DoubleClickCaption();
    ASSERT_EQ(TabSheet::detachedPage(sheet_), page);
    ASSERT_TRUE(::IsWindow(sheet_));
    EXPECT_EQ(TabSheet::pageCount(sheet_), 0);
    DoubleClickCaption();
    EXPECT_TRUE(IsDockedOnShow(page, 0));
}

TEST_F(TabSheetDetachTest, ANewSizeOfTheSheetLeavesItAlone) {
    PullOut();
    const RECT before = PlaceOf(b_);
    ::MoveWindow(sheet_, 0, 0, 200, 200, FALSE);
    EXPECT_EQ(PlaceOf(b_), before);
    EXPECT_TRUE(IsFitted(a_));
    TabSheet::dock(sheet_);
    EXPECT_TRUE(IsFitted(b_));
}

TEST_F(TabSheetDetachTest, PagesMayComeAndGoMeanwhile) {
    PullOut();
    AddPage("D");
    EXPECT_EQ(TabSheet::detachedPage(sheet_), b_);
    TabSheet::dock(sheet_);
    EXPECT_EQ(Titles(), (Strings{"A", "B", "C", "D"}));
    TabSheet::selectPage(sheet_, 3);
    TabSheet::detach(sheet_);
    TabSheet::removePage(sheet_, 0, true);
    EXPECT_NE(TabSheet::detachedPage(sheet_), nullptr);
    TabSheet::dock(sheet_);
    EXPECT_EQ(Titles(), (Strings{"B", "C", "D"})) << "at the end, as its place is gone";
}

TEST_F(TabSheetDetachTest, ItComesBackWhenTheLastOtherPageGoes) {
    PullOut();
    TabSheet::removePage(sheet_, 0, true);
    EXPECT_EQ(TabSheet::detachedPage(sheet_), b_);
    TabSheet::removePage(sheet_, 0, true);
    ASSERT_TRUE(::IsWindow(sheet_));
    EXPECT_TRUE(IsDockedOnShow(b_, 0));
}

TEST_F(TabSheetDetachTest, KeepsATitleOf149Characters) {
    AddPage(std::string(200, 'x').c_str());
    TabSheet::detach(sheet_);
    TabSheet::dock(sheet_);
    EXPECT_EQ(Titles(), Strings{std::string(149, 'x')});
}

TEST_F(TabSheetDetachTest, ClosingTheSheetTakesItFirstAndEndsAnEmptySheet) {
    PullOut();
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(b_));
    EXPECT_EQ(TabSheet::detachedPage(sheet_), nullptr);
    EXPECT_TRUE(HasShownStyle(c_));
    EXPECT_EQ(Titles(), (Strings{"A", "C"}));
    TabSheet::removePage(sheet_, 0, true);
    TabSheet::detach(sheet_);
    ::SendMessageA(sheet_, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(c_) || ::IsWindow(sheet_));
}

TEST_F(TabSheetDetachTest, ItsContextMenuIsStillAskedOfTheSheetsParent) {
    PullOut();
    ::SendMessageA(b_, WM_CONTEXTMENU, W(b_), 5);
    ASSERT_EQ(parent_.Heard(1524).size(), 1u);
    EXPECT_EQ(parent_.Heard(1524)[0].lParam, 5);
}

}  // namespace
}  // namespace corvex
