// The window ends by way of a stop thread, and comes back where it was.
#include <utility>

#include "session/window/SavedPlace.h"
#include "tests/session/window/main/MainWindowHelper.h"

namespace corvex::test {
namespace {

class ClosingTest : public MainWindowTest {
protected:
    std::string Line(const std::string& key) const {
        const std::string text = folder.Content("Settings.dat");
        const std::size_t at = text.find(key + "=");
        if (at == std::string::npos) return "none";
        const std::size_t from = at + key.size() + 1;
        return text.substr(from, text.find_first_of("\r\n", from) - from);
    }
};

TEST_F(ClosingTest, TheWindowStaysUntilItsMessageComesByCloseAndByExit) {
    for (const auto& [message, word] : {std::pair{UINT{WM_CLOSE}, WPARAM{0}}, {UINT{WM_COMMAND}, WPARAM{IDM_EXIT}}}) {
        Start();
        EXPECT_EQ(0, ::SendMessageA(window, message, word, 0));
        EXPECT_NE(FALSE, ::IsWindow(window));
        ASSERT_TRUE(Pumps([&] { return ::IsWindow(window) == FALSE; }));
        Close();
    }
}

TEST_F(ClosingTest, SavesThePlaceThatItHadLastAndALogoffDoesToo) {
    const std::pair<const char*, const char*> words[] = {
        {"winposx", "40"}, {"winposy", "50"}, {"winsizex", "700"}, {"winsizey", "520"}};
    for (const bool isLogoff : {true, false}) {
        Start();
        ::SetWindowPos(window, nullptr, 40, 50, 700, 520, SWP_NOZORDER);
        ::SendMessageA(window, WM_ENDSESSION, FALSE, 0);
        EXPECT_EQ("none", Line("winposx"));
        if (isLogoff) ::SendMessageA(window, WM_ENDSESSION, TRUE, 0);
        if (!isLogoff) Close();
        for (const auto& [key, word] : words)
            EXPECT_EQ(word, Line(key)) << key;
        Close();
        std::filesystem::remove(folder.Name("Settings.dat"));
    }
}

// Those that no screen shows get the first place of the screen of 1280 by 1024 that the folder's program stands on.
TEST_F(ClosingTest, ComesBackWhereItWasUnlessThatIsNoPlace) {
    const std::pair<const char*, SIZE> places[] = {
        {"winposx=40\nwinposy=50\nwinsizex=700\nwinsizey=520\n", {700, 520}},
        {"winposx=40000\nwinposy=50\nwinsizex=700\nwinsizey=520\n", {960, 704}},
        {"winposx=-5000\nwinposy=50\nwinsizex=700\nwinsizey=520\n", {960, 704}},
        {"winposx=40\nwinposy=50\nwinsizex=0\nwinsizey=520\n", {960, 704}},
        {"winposx=40\nwinposy=50\nwinsizex=700\nwinsizey=-1\n", {960, 704}},
        {"winposx=2147483647\nwinposy=50\nwinsizex=2147483647\nwinsizey=520\n", {960, 704}}};
    for (const auto& [settings, size] : places) {
        folder.Put("Settings.dat", settings);
        Start();
        EXPECT_EQ(size, SizeOf(window)) << settings;
        if (size.cx == 700) {
            EXPECT_EQ((RECT{40, 50, 740, 570}), PlaceOf(window));
        }
        ASSERT_TRUE(Close());
    }
}

TEST_F(ClosingTest, AMinimisedWindowComesBackWhereItWasBefore) {
    Start();
    ::ShowWindow(window, SW_SHOWNORMAL);
    ::SetWindowPos(window, nullptr, 40, 50, 700, 520, SWP_NOZORDER);
    ::ShowWindow(window, SW_MINIMIZE);
    ASSERT_TRUE(Close());
    EXPECT_EQ("700", Line("winsizex"));
    EXPECT_EQ("520", Line("winsizey"));
}

TEST(SavedPlaceTest, ThePlaceOfAMinimisedWindowCountsFromTheTaskBar) {
    const RECT place{40, 50, 740, 570}, monitor{0, 0, 1280, 1024}, second{1280, 0, 2560, 1024};
    const auto told = [&](const RECT& screen, const RECT& workArea) {
        const RECT moved = ScreenPlace(place, screen, workArea);
        EXPECT_EQ(700, moved.right - moved.left);
        EXPECT_EQ(520, moved.bottom - moved.top);
        return std::pair(moved.left, moved.top);
    };
    EXPECT_EQ(std::pair(40L, 50L), told(monitor, monitor));
    EXPECT_EQ(std::pair(40L, 50L), told(monitor, {0, 0, 1280, 984}));  // at the bottom
    EXPECT_EQ(std::pair(40L, 90L), told(monitor, {0, 40, 1280, 1024}));
    EXPECT_EQ(std::pair(102L, 50L), told(second, {1342, 0, 2560, 1024}));
}

TEST_F(ClosingTest, ManyClosesAreOne) {
    Start();
    for (int i = 0; i < 5; ++i)
        ::SendMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(Close());
}

}  // namespace
}  // namespace corvex::test
