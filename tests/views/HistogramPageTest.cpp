#include <gtest/gtest.h>

#include "export/HistogramCells.h"
#include "tests/views/HistogramTestHelper.h"

namespace corvex::test {
namespace {

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

TEST_F(HistogramPageTest, TheTableHasTitlesHeadsAndSizes) {
    const std::string v(60, 'v');
    char title[300] = "";
    ::GetWindowTextA(Grid(), title, sizeof title);
    EXPECT_EQ("Fuel - " + v + " vs " + v + " vs " + v, title);
    EXPECT_EQ((Strings{"", "0", "50", "100", "150"}), Row(0));
    second->SetYMax(1);
    Choose(Page(1), IDC_HISTOGRAM_COMBO, 1);
    EXPECT_EQ((Strings{"0", "0.500", "1"}), (Strings{Cell(1, 0), Cell(2, 0), Cell(3, 0)}));
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(55, Ask(GRM_GETCOLWIDTH, static_cast<WPARAM>(i)));
        EXPECT_EQ(20, Ask(GRM_GETROWHEIGHT, static_cast<WPARAM>(i)));
    }
    EXPECT_EQ(0, Ask(GRM_GETSTYLE) & (kGridEditable | kGridColumnLetters | kGridRowNumbers | kGridStretchLastColumn));
    EXPECT_NE(0, Ask(GRM_GETSTYLE) & kGridEllipsis) << "a cut number shows it";
}

TEST_F(HistogramPageTest, EveryHistogramGathersAndOneIsOnShow) {
    second->parentcmdidhash = kOtherCommand;
    Sample(150);
    EXPECT_EQ((Strings{"150", "", "", "", "150"}), Row(3));
    Sample(50, kOtherCommand);
    EXPECT_EQ((Strings{"75", "", "50", "", ""}), Row(2)) << "of no command: fed by all";
    EXPECT_EQ(1U, second->GetTotalSampleCount());
    Choose(Page(1), IDC_HISTOGRAM_COMBO, 1);
    EXPECT_EQ((Strings{"75", "", "50", "", ""}), Row(2));
    WindowSpy spy(Grid());
    Sample(150);
    EXPECT_EQ("", Cell(3, 4)) << "a sample of the other one";
    EXPECT_EQ(0, spy.Count(GRM_SETOVERLAY));
    Choose(Page(1), IDC_HISTOGRAM_VIEW, 3);
    EXPECT_EQ("1", Cell(2, 2));
    Choose(Page(1), IDC_HISTOGRAM_COMBO, 0);
    EXPECT_EQ("2", Cell(3, 4));
}

TEST_F(HistogramPageTest, EveryCellHitSinceTheLastDrawIsWrittenAndTheLastIsMarked) {
    WindowSpy spy(Grid());
    std::uint8_t byte = 0;
    const auto read = [&](std::uint8_t number) {
        byte = number;
        const PacketView packet(&byte, 1);
        session.views.Read({kAllSampleViews, 0, packet, kFeedingCommand, LastPacket::Of(packet, kFeedingCommand)});
    };
    read(0);
    read(100);
    EXPECT_EQ(0, spy.Count(GRM_PUTCELL));
    session.views.Draw();
    EXPECT_EQ("0", Cell(1, 1));
    EXPECT_EQ("100", Cell(2, 3));
    const HeardMessages marks = Of(spy.Heard(), GRM_SETOVERLAY);
    ASSERT_EQ(1U, marks.size());
    EXPECT_EQ(cellAddress(2, 3), marks[0].wParam);
    EXPECT_EQ(static_cast<LPARAM>(cellAddress(2, 3)), marks[0].lParam);
    read(50);
    Choose(Page(1), IDC_HISTOGRAM_COMBO, 1);
    spy.Forget();
    session.views.Draw();
    EXPECT_EQ(0, spy.Count(GRM_PUTCELL)) << "the hit of a histogram that is no longer on show";
}

TEST_F(HistogramPageTest, TheMarkGoesWithItsHistogramAndWithItsSamples) {
    WindowSpy spy(Grid());
    const auto marks = [&] {
        const HeardMessages heard = Of(spy.Heard(), GRM_SETOVERLAY);
        spy.Forget();
        return heard.empty() ? -1 : static_cast<int>(heard.back().wParam);
    };
    Choose(Page(1), IDC_HISTOGRAM_VIEW, 1);
    EXPECT_EQ(-1, marks()) << "stays with another statistic";
    Choose(Page(1), IDC_HISTOGRAM_COMBO, 1);
    EXPECT_EQ(0, marks());
    Press(IDC_HISTOGRAM_CLEAR);
    EXPECT_EQ(0, marks());
}

TEST_F(HistogramPageTest, SamplesAreWantedWhileThereIsAHistogramWhateverTabIsInFront) {
    EXPECT_TRUE(Wants(SampleViewKind::kHistograms));
    session.definition.Clear();
    RefreshHistogramPage(session);
    EXPECT_FALSE(Wants(SampleViewKind::kHistograms));
    EXPECT_EQ(0, Ask(GRM_GETROWS));
    EXPECT_EQ(0, ::GetWindowTextLengthA(Grid()));
}

TEST_F(HistogramPageTest, AMinimumThatNothingHasSetIsShownWhole) {
    Choose(Page(1), IDC_HISTOGRAM_VIEW, 6);
    Sample(150);
    EXPECT_EQ("340282346638528859811704183484516925440", Cell(3, 4));
}

TEST_F(HistogramPageTest, AHistogramWithoutCellsIsPassedOverAndLeavesTheClipboard) {
    first->SetRows(0);
    RefreshHistogramPage(session);
    Sample(150);
    EXPECT_EQ(0, Ask(GRM_GETROWS));
    EXPECT_EQ(1U, second->GetTotalSampleCount());
    EXPECT_TRUE(PutOnClipboard(frame, "kept"));
    EXPECT_EQ("kept", Copied(0, 0));
}

TEST_F(HistogramPageTest, TheCopyKeyPutsTheAxesOnTheClipboardToo) {
    Sample(0);
    Sample(150);
    const auto all = HistogramClipboardText(*first, ADXHistogram::kLast, WholeOf(*first));
    EXPECT_EQ(all, Copied(cellAddress(2, 2), cellAddress(2, 2))) << "one cell: all";
    EXPECT_EQ("\t100\t150\r\n75\t\t\r\n150\t\t150\r\n", Copied(cellAddress(3, 4), cellAddress(2, 3)));
    ::SendMessageA(Grid(), GRM_COPY, 0, 0);
    EXPECT_EQ("\t\r\n\t150\r\n", TextOfClipboard(frame)) << "the control's own copy";
}

TEST_F(HistogramPageTest, AClipboardThatIsTakenIsSaid) {
    ASSERT_TRUE(::OpenClipboard(frame));
    ::SendMessageA(Grid(), WM_CHAR, 0x03, 0);
    ::CloseClipboard();
    EXPECT_EQ("Nothing was copied", flashed);
}

TEST_F(HistogramPageTest, ClearForgetsTheSamplesOfTheHistogramOnShow) {
    Sample(150);
    ASSERT_EQ(1U, first->GetTotalSampleCount());
    Press(IDC_HISTOGRAM_CLEAR);
    EXPECT_EQ(0U, first->GetTotalSampleCount());
    EXPECT_EQ(1U, second->GetTotalSampleCount());
    EXPECT_EQ("", Cell(3, 4));
    session.definition.Clear();
    RefreshHistogramPage(session);
    Press(IDC_HISTOGRAM_CLEAR);
}

TEST_F(HistogramPageTest, GraphShowsTheChartInPlaceOfTheGrid) {
    const HWND grid = Grid(), chart = Chart();
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
    const HWND grid = Grid(), chart = Chart();
    const RECT place = PlaceOf(grid);
    for (const auto& [width, height] : {std::pair{700, 420}, std::pair{1600, 800}}) {
        Resize(width, height);
        const RECT client = ClientOf(Page(1));
        EXPECT_EQ((RECT{place.left, place.top, client.right - place.left, client.bottom - 3}), PlaceOf(grid));
        EXPECT_EQ(PlaceOf(grid), PlaceOf(chart));
    }
}

}  // namespace
}  // namespace corvex::test
