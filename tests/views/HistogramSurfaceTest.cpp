#include <gtest/gtest.h>

#include "controls/chart3d/Chart3D.h"
#include "tests/controls/window/MessagePump.h"
#include "tests/controls/window/WindowSpy.h"
#include "tests/support/Eventually.h"
#include "tests/views/HistogramTestHelper.h"

namespace corvex::test {
namespace {

class HistogramSurfaceTest : public HistogramPageTest {
protected:
    LRESULT AskChart(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageA(Chart(), message, wParam, lParam);
    }
    const IQZChart3DPlot* Plot() const { return reinterpret_cast<const IQZChart3DPlot*>(AskChart(CH3M_GETPLOT)); }
    Point3D At(int row, int column) const {
        Point3D point{-1, -1, -1, 0};
        EXPECT_EQ(1, Plot()->getPoint(row, column, &point));
        return point;
    }
    std::pair<float, float> Range(UINT message) const {
        std::pair<float, float> range;
        AskChart(message, W(&range.first), L(&range.second));
        return range;
    }
    std::pair<float, std::string> Tick(UINT message, WPARAM index) const {
        char text[60] = "";
        Chart3DTick tick{0, -1, text, sizeof text};
        EXPECT_EQ(1, AskChart(message, index, L(&tick)));
        return {tick.value, text};
    }
    void ShowGraph() {
        ShowFrame();
        TabSheet::selectPage(sheet, 1);
        Press(IDC_HISTOGRAM_GRAPH);
        Pump();
    }
};

TEST_F(HistogramSurfaceTest, HasThePointsAxesAndTitlesOfTheTable) {
    Sample(150);
    Choose(Page(1), IDC_HISTOGRAM_VIEW, 0);
    ASSERT_EQ(1, AskChart(CH3M_GETPLOTCOUNT));
    int rows = 0, columns = 0;
    Plot()->getGridSize(&rows, &columns);
    EXPECT_EQ((std::pair{3, 4}), (std::pair{rows, columns}));
    EXPECT_EQ(kPlotDefaultFlags | kPlotColourHeight, Plot()->getFlags() | kPlotDragHeight);
    EXPECT_FALSE(Plot()->testFlag(kPlotAnyDrag));
    EXPECT_EQ(kRampOfPlot, Plot()->getType());
    EXPECT_EQ((std::array{100.0F, 75.0F, 0.0F}), (std::array{At(1, 2).x, At(1, 2).y, At(1, 2).z}))
        << "without a sample";
    EXPECT_EQ(150.0F, At(2, 3).z);
    EXPECT_EQ((std::pair{50.0F, std::string("50")}), Tick(CH3M_GETXTICK, 1));
    EXPECT_EQ((std::pair{75.0F, std::string("75")}), Tick(CH3M_GETDEPTHTICK, 1));
    EXPECT_EQ(4, AskChart(CH3M_GETXTICKCOUNT));
    EXPECT_EQ(3, AskChart(CH3M_GETDEPTHTICKCOUNT));
    EXPECT_EQ((std::pair{0.0F, 150.0F}), Range(CH3M_GETXRANGE));
    EXPECT_EQ((std::pair{0.0F, 150.0F}), Range(CH3M_GETDEPTHRANGE));
    EXPECT_EQ((std::pair{0.0F, 150.0F}), Range(CH3M_GETVERTRANGE)) << "of the heights";
    EXPECT_NE(0, AskChart(CH3M_GETVERTTICKCOUNT));
    char ofGrid[256] = "", ofChart[256] = "";
    ::GetWindowTextA(Grid(), ofGrid, sizeof ofGrid);
    ::GetWindowTextA(Chart(), ofChart, sizeof ofChart);
    EXPECT_EQ(std::string(ofGrid).substr(0, 100), std::string(ofChart).substr(0, 100));
}

TEST_F(HistogramSurfaceTest, ASampleMovesItsPointAndARebuildTellsOfOneNewRange) {
    Sample(150);
    EXPECT_EQ(150.0F, At(2, 3).z);
    EXPECT_EQ((std::pair{0.0F, 150.0F}), Range(CH3M_GETVERTRANGE));
    WindowSpy page(Page(1));
    int ranges = 0;
    page.SetHandler([&ranges](UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
        if (message == WM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->code == kVerticalRangeHasChanged) ++ranges;
        return std::nullopt;
    });
    Choose(Page(1), IDC_HISTOGRAM_VIEW, 3);
    EXPECT_EQ(1.0F, At(2, 3).z) << "another statistic";
    EXPECT_EQ(1, ranges);
}

TEST_F(HistogramSurfaceTest, ClearZeroesItAndWithoutADefinitionThereIsNone) {
    Press(IDC_HISTOGRAM_GRAPH);
    Sample(150);
    Press(IDC_HISTOGRAM_CLEAR);
    EXPECT_EQ(0.0F, At(2, 3).z);
    EXPECT_EQ((std::pair{0.0F, 0.0F}), Range(CH3M_GETVERTRANGE));
    session.definition.Clear();
    RefreshHistogramPage(session);
    EXPECT_EQ(0, AskChart(CH3M_GETPLOTCOUNT));
    EXPECT_EQ(0, AskChart(CH3M_GETXTICKCOUNT));
    EXPECT_EQ(0, ::GetWindowTextLengthA(Chart()));
}

TEST_F(HistogramSurfaceTest, SamplesWaitForAMomentToPaintButNotForLong) {
    ShowGraph();
    WindowSpy chart(Chart());
    Sample(150);
    EXPECT_EQ(0, chart.Count(WM_PAINT)) << "a waiting sample comes first";
    EXPECT_TRUE(Eventually([&] {
        Sample(100);
        return chart.Count(WM_PAINT) > 0;
    })) << "without a moment of rest";
    Sample(50);
    Pump();
    EXPECT_FALSE(::GetUpdateRect(Chart(), nullptr, FALSE)) << "the last state is shown";
}

TEST_F(HistogramSurfaceTest, ThePictureFollowsSamplesClearAndSize) {
    ShowGraph();
    const auto picture = [&] {
        Pump();
        return TestBitmap(Chart()).Pixels();
    };
    const auto fresh = picture();
    Sample(150);
    const auto hit = picture();
    EXPECT_NE(fresh, hit);
    Press(IDC_HISTOGRAM_CLEAR);
    EXPECT_EQ(fresh, picture());
    Resize(500, 350);
    EXPECT_NE(fresh.size(), picture().size());
}

TEST_F(HistogramSurfaceTest, OneRowOneColumnAndOneCellAreShown) {
    ShowGraph();
    for (const auto& [rows, columns] : {std::pair{1U, 4U}, std::pair{3U, 1U}, std::pair{1U, 1U}, std::pair{0U, 3U}}) {
        first->SetRows(rows);
        first->SetCols(columns);
        RefreshHistogramPage(session);
        Sample(150);
        Pump();
        int shownRows = 0, shownColumns = 0;
        Plot()->getGridSize(&shownRows, &shownColumns);
        EXPECT_EQ((std::pair{static_cast<int>(rows), static_cast<int>(columns)}), (std::pair{shownRows, shownColumns}));
        EXPECT_FALSE(::GetUpdateRect(Chart(), nullptr, FALSE)) << "painted";
    }
}

}  // namespace
}  // namespace corvex::test
