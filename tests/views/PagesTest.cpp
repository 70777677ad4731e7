#include <gtest/gtest.h>

#include "files/adx/ADXParser.h"
#include "tests/views/PageTestHelper.h"
#include "views/Pages.h"

namespace corvex::test {
namespace {

class PagesTest : public PageTest {
protected:
    PagesTest() { CreatePages(session); }
    void LoadExample() {
        ASSERT_EQ(1, session.definition.Load(CORVEX_SOURCE_DIR "/examples/harrier-8192.adx"));
        RefreshPages(session);
    }
};

// The visible controls of a page, with their places in it.
std::vector<RECT> Places(HWND page) {
    std::vector<RECT> places;
    for (HWND child = ::GetWindow(page, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (::IsWindowVisible(child) != FALSE) places.push_back(PlaceOf(child));
    }
    return places;
}

void ExpectNothingOverlapsOrSticksOut(HWND page) {
    const RECT client = ClientOf(page);
    const std::vector<RECT> places = Places(page);
    for (std::size_t i = 0; i < places.size(); ++i) {
        RECT common{};
        ::IntersectRect(&common, &client, &places[i]);
        EXPECT_TRUE(::EqualRect(&common, &places[i])) << "control " << i << " sticks out";
        for (std::size_t other = i + 1; other < places.size(); ++other)
            EXPECT_FALSE(::IntersectRect(&common, &places[i], &places[other])) << i << " overlaps " << other;
    }
}

TEST_F(PagesTest, StandInTheOrderOfTheirCreation) {
    ASSERT_EQ(5, TabSheet::pageCount(sheet));
    const char* const titles[] = {"Output", "Dash", "Item Lists", "Histograms", "Monitors"};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(titles[i], Title(i));
    for (int i = 1; i < 5; ++i)
        EXPECT_FALSE(::IsWindowVisible(Page(i)));
}

TEST_F(PagesTest, HaveRoomForTheirControlsInSmallAndLargeWindows) {
    LoadExample();
    ShowFrame();
    for (const auto& [width, height] : {std::pair{634, 400}, std::pair{1584, 800}}) {
        ResizeFrame(width, height);
        for (int i = 1; i < 5; ++i) {
            TabSheet::selectPage(sheet, i);
            SavePicture(frame, Title(i).append(" ").append(std::to_string(width)));
            ExpectNothingOverlapsOrSticksOut(Page(i));
        }
    }
}

TEST(PagesWithoutSheetTest, CreatingThemWithoutASheetLeavesNothing) {
    SessionState session;
    CreatePages(session);
    EXPECT_EQ(nullptr, session.dashPage);
    EXPECT_EQ(nullptr, session.listPage);
    EXPECT_EQ(nullptr, session.histogramPage);
    EXPECT_EQ(nullptr, session.monitorPage);
}

}  // namespace
}  // namespace corvex::test
