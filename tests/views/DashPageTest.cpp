#include <gtest/gtest.h>

#include "definition/ADXDashboard.h"
#include "tests/views/PageTestHelper.h"
#include "views/DashPage.h"
#include "views/PageResources.h"

namespace corvex::test {
namespace {

class DashPageTest : public PageTest {
protected:
    void AddTwo() {
        first = AddTitled<ADXDashboard>(session.definition, "A", "Engine");
        second = AddTitled<ADXDashboard>(session.definition, "B", "Gearbox");
    }
    const DashPage& State() const { return *PageOf<DashPage>(session.dashPage); }

    ADXDashboard *first = nullptr, *second = nullptr;
};

TEST_F(DashPageTest, IsATabOfTheSheet) {
    CreateDashPage(session);
    ASSERT_EQ(2, TabSheet::pageCount(sheet));
    EXPECT_EQ("Dash", Title(1));
    EXPECT_EQ(session.dashPage, Page(1));
}

TEST_F(DashPageTest, ShowsTheFirstDashboardFromTheStart) {
    AddTwo();
    CreateDashPage(session);
    EXPECT_EQ(first, State().Dashboard());
}

TEST_F(DashPageTest, RefreshOffersAllAndTakesTheFirst) {
    CreateDashPage(session);
    AddTwo();
    RefreshDashPage(session);
    EXPECT_EQ((std::vector<std::string>{"Engine", "Gearbox"}), Rows(Item(session.dashPage, IDC_DASH_COMBO)));
    EXPECT_EQ(first, session.currentDashboard);
    EXPECT_EQ(first, State().Dashboard());
}

TEST_F(DashPageTest, RefreshAfterAChoiceGoesBackToTheFirst) {
    AddTwo();
    CreateDashPage(session);
    RefreshDashPage(session);
    Choose(Page(1), IDC_DASH_COMBO, 1);
    RefreshDashPage(session);
    EXPECT_EQ(first, session.currentDashboard);
    EXPECT_EQ(0, ::SendMessageA(Item(session.dashPage, IDC_DASH_COMBO), CB_GETCURSEL, 0, 0));
}

TEST_F(DashPageTest, ChoosingARowShowsItsDashboard) {
    AddTwo();
    CreateDashPage(session);
    RefreshDashPage(session);
    Choose(Page(1), IDC_DASH_COMBO, 1);
    EXPECT_EQ(second, session.currentDashboard);
    EXPECT_EQ(second, State().Dashboard());
    Choose(Page(1), IDC_DASH_COMBO, -1);
    EXPECT_EQ(nullptr, session.currentDashboard);
}

TEST_F(DashPageTest, AnEmptyDefinitionShowsNone) {
    AddTwo();
    CreateDashPage(session);
    RefreshDashPage(session);
    session.definition.Clear();
    RefreshDashPage(session);
    EXPECT_EQ(nullptr, session.currentDashboard);
    EXPECT_EQ(nullptr, State().Dashboard());
    EXPECT_TRUE(Rows(Item(session.dashPage, IDC_DASH_COMBO)).empty());
}

TEST_F(DashPageTest, AChoiceBetweenClearAndRefreshTakesNothingThatIsGone) {
    AddTwo();
    CreateDashPage(session);
    RefreshDashPage(session);
    session.definition.Clear();
    Choose(Page(1), IDC_DASH_COMBO, 1);
    EXPECT_EQ(nullptr, session.currentDashboard);
}

TEST_F(DashPageTest, TheGaugesHaveWhatTheComboBoxLeaves) {
    CreateDashPage(session);
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1600, 800}}) {
        Resize(width, height);
        const RECT client = ClientOf(Page(1));
        const RECT combo = PlaceInParent(Item(session.dashPage, IDC_DASH_COMBO));
        EXPECT_EQ(0, State().Area().left);
        EXPECT_EQ(combo.bottom + 3, State().Area().top);
        EXPECT_EQ(client.right, State().Area().right);
        EXPECT_EQ(client.bottom, State().Area().bottom);
        EXPECT_GT(client.right, width - 30);
    }
}

TEST_F(DashPageTest, LeavesItsGroundToThePaint) {
    CreateDashPage(session);
    EXPECT_TRUE(ErasesNothing(Page(1)));
}

TEST_F(DashPageTest, IsVisibleAsTheChosenTabOfAVisibleWindow) {
    EXPECT_FALSE(Wants(SampleViewKind::kDash));
    CreateDashPage(session);
    ShowFrame();
    EXPECT_FALSE(Wants(SampleViewKind::kDash));
    TabSheet::selectPage(sheet, 1);
    EXPECT_TRUE(Wants(SampleViewKind::kDash));
    ShowFrame(false);
    EXPECT_FALSE(Wants(SampleViewKind::kDash));
}

TEST_F(DashPageTest, ItsEndIsKnown) {
    CreateDashPage(session);
    const HWND page = Page(1);
    ::DestroyWindow(std::exchange(frame, nullptr));
    EXPECT_EQ(nullptr, session.dashPage);
    EXPECT_EQ(nullptr, PageOf<DashPage>(page));
    EXPECT_FALSE(Wants(SampleViewKind::kDash));
    session.currentDashboard = reinterpret_cast<ADXDashboard*>(&session);
    RefreshDashPage(session);
    EXPECT_EQ(nullptr, session.currentDashboard);
}

TEST_F(DashPageTest, OtherWindowsHaveNoState) {
    EXPECT_EQ(nullptr, PageOf<DashPage>(nullptr));
    EXPECT_EQ(nullptr, PageOf<DashPage>(frame));
    ShowDashboard(nullptr, frame);
}

}  // namespace
}  // namespace corvex::test
