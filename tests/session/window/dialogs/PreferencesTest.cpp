#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "controls/proptree/PropTreeContainer.h"
#include "controls/window/CommonControls.h"
#include "platform/PortList.h"
#include "session/window/DialogResources.h"
#include "session/window/Preferences.h"
#include "tests/controls/window/ControlTestHelper.h"
#include "tests/controls/window/PaintTestHelper.h"

namespace corvex::test {
namespace {

constexpr int kOk = 1000, kCancel = 1001;

void Press(HWND dialog, int id) {
    ::SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(MAKEWPARAM(id, BN_CLICKED)), L(::GetDlgItem(dialog, id)));
}

// A main window that does with notifications what it should, and keeps a diary.
class PreferencesTest : public ::testing::Test {
protected:
    PreferencesTest() {
        session.instance = ::GetModuleHandleA(nullptr);
        EXPECT_TRUE(PropTreeContainer::Register(static_cast<HINSTANCE>(session.instance)));
        session.mainWindow = main;
        parent.handler = [this](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
            if (message == WM_ENABLE) diary.push_back(wParam != 0 ? "enabled" : "disabled");
            if (message != WM_NOTIFY) return std::nullopt;
            const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
            diary.push_back(std::to_string(header.code));
            return OnPreferencesNotify(session, header);
        };
    }
    ~PreferencesTest() override {
        if (parent.Alive()) ::DestroyWindow(main);
    }

    HWND Window() const { return static_cast<HWND>(session.preferencesWindow); }
    HWND Port() const { return ::GetDlgItem(PropTreeContainer::currentPage(Window()), IDC_PORT_DIGIT); }
    void Type(const char* text) const { ::SetWindowTextA(Port(), text); }
    std::string PortAfter(const char* typed) {
        OpenPreferences(session);
        Type(typed);
        Press(Window(), kOk);
        EXPECT_EQ(nullptr, Window());
        return session.settings.comport;
    }
    std::size_t DiaryPlace(const std::string& entry) const {
        return static_cast<std::size_t>(std::find(diary.begin(), diary.end(), entry) - diary.begin());
    }

    SessionState session;
    TestWindow parent{WS_OVERLAPPEDWINDOW | WS_VISIBLE};
    const HWND main = parent.Window();
    std::vector<std::string> diary;
};

TEST_F(PreferencesTest, HasThreePagesBelowEachOtherAndShowsComSetup) {
    OpenPreferences(session);
    EXPECT_EQ("Preferences", TextOfWindow(Window()));
    EXPECT_EQ("General COM Setup Keyboard Accelerators",
              TreeTitles(::FindWindowExA(Window(), nullptr, WC_TREEVIEWA, nullptr)));
    EXPECT_TRUE(::IsWindowVisible(Port())) << "the page of the port";
}

TEST_F(PreferencesTest, KeepsTheMainWindowDisabledAndGivesItBackBeforeItGoes) {
    for (const int way : {kOk, kCancel, 0}) {
        OpenPreferences(session);
        Type("5");
        EXPECT_FALSE(::IsWindowEnabled(main));
        EXPECT_EQ(main, ::GetWindow(Window(), GW_OWNER));
        diary.clear();
        if (way == 0) {
            ::SendMessageA(Window(), WM_CLOSE, 0, 0);
        } else {
            Press(Window(), way);
        }
        EXPECT_LT(DiaryPlace("enabled"), DiaryPlace("2")) << way;
        EXPECT_LT(DiaryPlace("2"), diary.size()) << way;
        EXPECT_TRUE(::IsWindowEnabled(main));
        EXPECT_EQ(nullptr, Window());
        EXPECT_STREQ(way == kOk ? "COM5" : "COM1", std::exchange(session.settings, {}).comport) << "only OK stores it";
    }
}

TEST_F(PreferencesTest, ShowsTheDigitOfThePortAndTakesTwoCharacters) {
    session.settings.comport[3] = '7';
    OpenPreferences(session);
    EXPECT_EQ("7", TextOfWindow(Port()));
    EXPECT_EQ(2, ::SendMessageA(Port(), EM_GETLIMITTEXT, 0, 0));
}

TEST_F(PreferencesTest, NamesThePortsThatThereAreBesideTheBox) {
    OpenPreferences(session);
    const HWND list = ::GetDlgItem(PropTreeContainer::currentPage(Window()), IDC_PORT_LIST);
    const std::vector<SerialPortEntry> ports = SystemPorts().Ports();
    const std::string text = TextOfWindow(list);
    for (const SerialPortEntry& port : ports)
        EXPECT_NE(text.find(port.name), std::string::npos) << text;
    EXPECT_EQ(ports.empty() ? "There is no port now" : "Ports there are now:", text.substr(0, 20));
}

TEST_F(PreferencesTest, OkStoresTheDigitOfANumberWhateverItIs) {
    for (const auto& [typed, port] : {std::pair{"3", "COM3"}, {"9", "COM9"}, {"12", "COM<"}, {"", "COM0"}})
        EXPECT_EQ(port, PortAfter(typed)) << typed;
}

TEST_F(PreferencesTest, OkTakesThePortFromItsPageWhicheverIsOnShow) {
    OpenPreferences(session);
    Type("6");
    PropTreeContainer::selectByTitle(Window(), "Keyboard Accelerators");
    EXPECT_EQ("Keyboard Accelerator Configuration n' Junk (Non-functional at the moment)",
              TextOfWindow(::GetWindow(PropTreeContainer::currentPage(Window()), GW_CHILD)));
    Press(Window(), kOk);
    EXPECT_STREQ("COM6", session.settings.comport);
}

TEST_F(PreferencesTest, OpensOnlyOnce) {
    OpenPreferences(session);
    const HWND first = Window();
    OpenPreferences(session);
    EXPECT_EQ(first, Window());
    Press(first, kCancel);
    OpenPreferences(session);
    EXPECT_NE(nullptr, Window());
}

TEST_F(PreferencesTest, GoesWithTheMainWindow) {
    OpenPreferences(session);
    const HWND window = Window();
    ::DestroyWindow(main);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(nullptr, session.preferencesWindow);
}

TEST_F(PreferencesTest, LeavesNotificationsOfOthersAlone) {
    NMHDR header{main, 0, PTN_OK};
    EXPECT_EQ(0, OnPreferencesNotify(session, header));
    OpenPreferences(session);
    Type("8");
    EXPECT_EQ(0, OnPreferencesNotify(session, header));
    EXPECT_STREQ("COM1", session.settings.comport);
    EXPECT_FALSE(::IsWindowEnabled(main));
}

TEST_F(PreferencesTest, HasRoomForItsTexts) {
    OpenPreferences(session);
    for (const char* title : {"General", "COM Setup", "Keyboard Accelerators"}) {
        ASSERT_TRUE(PropTreeContainer::selectByTitle(Window(), title));
        SavePicture(Window(), std::string("Preferences ").append(title));
        RECT place{}, window{}, common{};
        ::GetWindowRect(PropTreeContainer::currentPage(Window()), &place);
        ::GetWindowRect(Window(), &window);
        ::IntersectRect(&common, &place, &window);
        EXPECT_EQ(place, common) << title;
    }
}

}  // namespace
}  // namespace corvex::test
