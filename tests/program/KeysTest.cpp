#include "controls/window/CommonControls.h"
#include "tests/program/ProgramTest.h"
#include "tools/driver/Input.h"
#include "tools/driver/LogFiles.h"
#include "tools/driver/RemoteMemory.h"

namespace corvex::test {
namespace {

constexpr WORD kBackQuote = VK_OEM_3, kOpenBracket = VK_OEM_4, kCloseBracket = VK_OEM_6;
constexpr std::uint32_t kForever = 1000000;  // ms; no test waits for it

class Keys : public ProgramTest {
protected:
    void Press(WORD key, unsigned modifiers = kPlain) {
        ASSERT_TRUE(PressKey(Window().Handle(), key, modifiers)) << "the window does not come to the front";
    }
    // Of 25 records the third and the sixteenth are out of reach.
    void StartWithLog() {
        std::vector<std::uint32_t> times;
        for (std::uint32_t i = 0; i < 25; ++i)
            times.push_back(i * 150 + (i >= 2 ? kForever : 0) + (i >= 15 ? kForever : 0));
        folder.Files().Put("drive.xdl", MakeLog(times));
        Settle({{"lastxdlpath", folder.Name("drive.xdl")}});
        Start();
    }
    void ExpectSlider(int position) {
        EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() == position; })) << Window().SliderPosition();
    }
};

// A key that is typed into the text of the Output tab would be lost to the commands.
TEST_F(Keys, BackQuoteScansAndCtrlAltSpaceRecordsWhileTheOutputTextHasTheFocus) {
    Settle();
    Start();
    engines.Start({"--pace"});
    HWND edit = FindBelow(Window().Handle(), "Edit", kOutputId);
    ::PostMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ::PostMessageA(edit, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    const auto hasFocus = [&] {
        GUITHREADINFO info = {};
        info.cbSize = sizeof info;
        return ::GetGUIThreadInfo(::GetWindowThreadProcessId(edit, nullptr), &info) && info.hwndFocus == edit;
    };
    ASSERT_TRUE(Eventually(hasFocus));
    Press(kBackQuote);
    ExpectLeft("ALDL: Connected");
    EXPECT_FALSE(Window().OutputHas("`"));
    Press(VK_SPACE, kCtrl | kAlt);
    ExpectLeft("Log Recording");
    Press(VK_SPACE, kCtrl);
    CancelDialog(program->Id(), kSaveLogTitle);
    ExpectLeft("ALDL: Connected");
    Press(kBackQuote);
    ExpectLeft("ALDL: Not Connected");
}

TEST_F(Keys, F1TellsOfTheLineWhoseWindowHasItsOwnKeys) {
    Settle();
    Start();
    Press(VK_F1);
    HWND line = WaitForDialog(program->Id(), "The line");
    ASSERT_TRUE(PressKey(line, kBackQuote));
    ASSERT_TRUE(PressKey(line, VK_ESCAPE));
    EXPECT_TRUE(Eventually([&] { return ::IsWindow(line) == FALSE; }));
    EXPECT_FALSE(Window().OutputHas("Unable to open port")) << "no scan was asked for";
    EXPECT_EQ(Window().LinkText(), "not connected");
}

TEST_F(Keys, BracketsJumpAgainstWhatTheMenuSaysAndTheMouseDragsTheLogAlong) {
    StartWithLog();
    Press(VK_SPACE);
    ExpectSlider(2);
    Press(kCloseBracket);
    ExpectSlider(15);
    Press(kOpenBracket);
    EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() < 15; }));
    ExpectSlider(15);
    HWND slider = Window().Slider();
    const RECT thumb = AskRectangle(slider, TBM_GETTHUMBRECT, 0);
    POINT from{(thumb.left + thumb.right) / 2, (thumb.top + thumb.bottom) / 2}, to{0, from.y};
    ::ClientToScreen(slider, &from);
    ::ClientToScreen(slider, &to);
    // A press that comes while the desktop still moves its pointer is lost, and the thumb stays where it was.
    const auto isDragged = [&] {
        return DragMouse(from, to) && Eventually([&] { return Window().SliderPosition() < 15; }, 5);
    };
    EXPECT_TRUE(isDragged() || isDragged() || isDragged());
    ExpectSlider(2);
}

}  // namespace
}  // namespace corvex::test
