#include <gtest/gtest.h>

#include "tests/views/PageTestHelper.h"
#include "views/MonitorPage.h"

namespace corvex::test {
namespace {

class MonitorPageTest : public PageTest {
protected:
    MonitorPageTest() { CreateMonitorPage(session); }

    MonitorPage& State() const { return *static_cast<MonitorPage*>(session.monitorState); }
    HWND PutChart() const {
        const HWND chart =
            ::CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 1, 1, State().Window(), nullptr, nullptr, nullptr);
        State().charts.push_back({chart, nullptr});
        return chart;
    }
};

TEST_F(MonitorPageTest, IsATabOfTheSheet) {
    ASSERT_EQ(2, TabSheet::pageCount(sheet));
    EXPECT_EQ("Monitors", Title(1));
    EXPECT_EQ(Page(1), State().Window());
    EXPECT_EQ(session.monitorPage, Page(1));
}

TEST_F(MonitorPageTest, StacksTheChartsOverTheWholeWidth) {
    const HWND charts[] = {PutChart(), PutChart(), PutChart()};
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1600, 801}}) {
        Resize(width, height);
        const RECT client = ClientOf(Page(1));
        const LONG share = client.bottom / 3;
        for (int i = 0; i < 3; ++i) {
            const RECT place = PlaceInParent(charts[i]);
            EXPECT_EQ(0, place.left);
            EXPECT_EQ(i * share, place.top);
            EXPECT_EQ(client.right, place.right);
            EXPECT_EQ(share, place.bottom - place.top);
        }
    }
}

TEST_F(MonitorPageTest, RefreshTakesTheChartsAway) {
    const HWND chart = PutChart();
    RefreshMonitorPage(session);
    EXPECT_FALSE(::IsWindow(chart));
    EXPECT_TRUE(State().charts.empty());
    Resize(300, 300);
}

TEST_F(MonitorPageTest, ItsEndIsKnown) {
    PutChart();
    ::DestroyWindow(std::exchange(frame, nullptr));
    EXPECT_EQ(nullptr, session.monitorState);
    EXPECT_EQ(nullptr, session.monitorPage);
    RefreshMonitorPage(session);
}

TEST(MonitorPageWithoutSheetTest, RefreshBeforeThereIsAPageDoesNothing) {
    SessionState session;
    RefreshMonitorPage(session);
    EXPECT_EQ(nullptr, session.monitorState);
}

}  // namespace
}  // namespace corvex::test
