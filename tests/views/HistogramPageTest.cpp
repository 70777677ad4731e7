#include <gtest/gtest.h>

#include "definition/ADXHistogram.h"
#include "tests/views/PageTestHelper.h"
#include "views/HistogramPage.h"
#include "views/PageResources.h"

namespace corvex::test {
namespace {

class HistogramPageTest : public PageTest {
protected:
    HistogramPageTest() {
        first = AddTitled<ADXHistogram>(session.definition, "A", "Fuel");
        second = AddTitled<ADXHistogram>(session.definition, "B", "Spark");
        CreateHistogramPage(session);
    }
    // A window where the grid or the chart is to be.
    HWND Put(int id, DWORD visible, int left, int top) const {
        return ::CreateWindowExA(0, "STATIC", "", WS_CHILD | visible, left, top, 10, 10, Page(1),
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }
    void Press(int id) const { ::SendMessageA(Item(session.histogramPage, id), BM_CLICK, 0, 0); }

    ADXHistogram *first = nullptr, *second = nullptr;
};

TEST_F(HistogramPageTest, OffersNineStatistics) {
    const std::pair<const char*, int> expected[] = {
        {"Most Recent Sample", 0},   {"History Average", 2},  {"History Std Deviation", 3},
        {"History Sample Count", 1}, {"Running Average", 8},  {"Running Sample Count", 7},
        {"Running Minimum", 9},      {"Running Maximum", 10}, {"Running Range", 11}};
    const HWND combo = Item(session.histogramPage, IDC_HISTOGRAM_VIEW);
    ASSERT_EQ(9, ::SendMessageA(combo, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(expected[i].first, RowText(combo, i));
        EXPECT_EQ(expected[i].second, ::SendMessageA(combo, CB_GETITEMDATA, static_cast<WPARAM>(i), 0));
    }
}

TEST_F(HistogramPageTest, ChoosingTakesTheStatisticWhichARefreshKeeps) {
    EXPECT_EQ(first, session.currentHistogram) << "from the start";
    EXPECT_EQ(0, ::SendMessageA(Item(session.histogramPage, IDC_HISTOGRAM_VIEW), CB_GETCURSEL, 0, 0));
    EXPECT_EQ(0U, session.currentHistogramView);
    Choose(Page(1), IDC_HISTOGRAM_VIEW, 2);
    EXPECT_EQ(3U, session.currentHistogramView);
    Choose(Page(1), IDC_HISTOGRAM_COMBO, 1);
    Choose(Page(1), IDC_HISTOGRAM_VIEW, 8);
    EXPECT_EQ(second, session.currentHistogram);
    RefreshHistogramPage(session);
    EXPECT_EQ(first, session.currentHistogram);
    EXPECT_EQ(11U, session.currentHistogramView);
    EXPECT_EQ(8, ::SendMessageA(Item(session.histogramPage, IDC_HISTOGRAM_VIEW), CB_GETCURSEL, 0, 0));
    Choose(Page(1), IDC_HISTOGRAM_VIEW, -1);
    RefreshHistogramPage(session);
    EXPECT_EQ(11U, session.currentHistogramView) << "the former one, without one chosen";
}

TEST_F(HistogramPageTest, ClearForgetsTheSamplesOfTheHistogramOnShow) {
    for (ADXHistogram* histogram : {first, second}) {
        histogram->SetRows(2);
        histogram->SetCols(2);
        histogram->AddPoint(0, 0, 1);
    }
    ASSERT_EQ(1U, first->GetTotalSampleCount());
    Press(IDC_HISTOGRAM_CLEAR);
    EXPECT_EQ(0U, first->GetTotalSampleCount());
    EXPECT_EQ(1U, second->GetTotalSampleCount());
    session.definition.Clear();
    RefreshHistogramPage(session);
    Press(IDC_HISTOGRAM_CLEAR);
}

TEST_F(HistogramPageTest, GraphShowsTheChartInPlaceOfTheGrid) {
    const HWND grid = Put(IDC_HISTOGRAM_GRID, WS_VISIBLE, 4, 30), chart = Put(IDC_HISTOGRAM_CHART, 0, 0, 0);
    EXPECT_TRUE(HasShownStyle(grid));
    Press(IDC_HISTOGRAM_GRAPH);
    EXPECT_TRUE(HasShownStyle(chart));
    EXPECT_FALSE(HasShownStyle(grid));
    RefreshHistogramPage(session);
    EXPECT_TRUE(HasShownStyle(chart));
    Press(IDC_HISTOGRAM_GRAPH);
    EXPECT_FALSE(HasShownStyle(chart));
    EXPECT_TRUE(HasShownStyle(grid));
}

TEST_F(HistogramPageTest, GridAndChartHaveTheSamePlaceBelowTheControls) {
    const HWND grid = Put(IDC_HISTOGRAM_GRID, WS_VISIBLE, 4, 30), chart = Put(IDC_HISTOGRAM_CHART, 0, 0, 0);
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1600, 800}}) {
        Resize(width, height);
        const RECT client = ClientOf(Page(1));
        EXPECT_EQ((RECT{4, 30, client.right - 4, client.bottom - 3}), PlaceOf(grid));
        EXPECT_EQ(PlaceOf(grid), PlaceOf(chart));
    }
}

}  // namespace
}  // namespace corvex::test
