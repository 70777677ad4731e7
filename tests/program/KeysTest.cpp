#include "controls/window/CommonControls.h"
#include "tests/program/ProgramTest.h"
#include "tests/program/driver/Keyboard.h"
#include "tests/program/driver/LogFiles.h"
#include "tests/program/driver/Mouse.h"
#include "tests/program/driver/RemoteMemory.h"

namespace corvex::test {
namespace {

constexpr WORD kBackQuote = VK_OEM_3, kOpenBracket = VK_OEM_4, kCloseBracket = VK_OEM_6;

class Keys : public ProgramTest {
protected:
    void Press(WORD key, unsigned modifiers = kPlain) {
        ASSERT_TRUE(PressKey(Window().Handle(), key, modifiers)) << "the window does not come to the front";
    }
    void StartWithLog(const std::string& log) {
        folder.Files().Put("drive.xdl", log);
        Settle({{"lastxdlpath", folder.Name("drive.xdl")}});
        Start();
    }
    void ExpectSpeed(const char* percent) {
        const std::string ending = std::string("(Speed: ").append(percent).append("%)");
        EXPECT_TRUE(Eventually([&] { return Window().Title().find(ending) != std::string::npos; })) << Window().Title();
    }
    void ExpectSlider(int position) {
        EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() == position; })) << Window().SliderPosition();
    }
    void ExpectDialog(WORD key, unsigned modifiers, const std::string& title) {
        Press(key, modifiers);
        CancelDialog(program->Id(), title);
    }
};

TEST_F(Keys, BackQuoteScans) {
    Settle();
    Start();
    engines.Start({"--pace"});
    Press(kBackQuote);
    ExpectLeft("ALDL: Connected");
    Press(kBackQuote);
    ExpectLeft("ALDL: Not Connected");
}

TEST_F(Keys, SpacePlaysAndPauses) {
    StartWithLog(MakeEvenLog(9, 1000000));
    Press(VK_SPACE);
    ExpectLeft("Log Playing");
    Press(VK_SPACE);
    ExpectLeft("Log Paused");
    // The thread of the playback before may not be quite gone, and then nothing happens.
    const auto playsOn = [this] {
        Press(VK_SPACE);
        return Eventually([this] { return Window().OutputLines().back() == "Playback unpaused"; }) &&
               Window().Bar().pause;
    };
    EXPECT_TRUE(Eventually(playsOn));
    Press(VK_SPACE, kCtrl);
    ExpectLeft("ALDL: Not Connected");
}

TEST_F(Keys, BracketsJumpAgainstWhatTheMenuSays) {
    // Of 25 records the third and the sixteenth are out of reach.
    std::vector<std::uint32_t> times;
    for (std::uint32_t i = 0; i < 25; ++i)
        times.push_back(i * 150 + (i >= 2 ? 1000000 : 0) + (i >= 15 ? 1000000 : 0));
    StartWithLog(MakeLog(times));
    Press(VK_SPACE);
    ExpectSlider(2);
    Press(kCloseBracket);
    ExpectSlider(15);
    Press(kOpenBracket);
    EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() < 15; }));
    ExpectSlider(15);
}

TEST_F(Keys, AndTheMouseDragsTheLogAlong) {
    // Of 30 records the 21st is out of reach.
    std::vector<std::uint32_t> times;
    for (std::uint32_t i = 0; i < 30; ++i)
        times.push_back(i * 100 + (i >= 20 ? 1000000 : 0));
    StartWithLog(MakeLog(times));
    Window().Send(kPlay);
    ExpectSlider(20);
    HWND slider = Window().Slider();
    const RECT thumb = AskRectangle(slider, TBM_GETTHUMBRECT, 0);
    POINT from{(thumb.left + thumb.right) / 2, (thumb.top + thumb.bottom) / 2}, to{0, from.y};
    ::ClientToScreen(slider, &from);
    ::ClientToScreen(slider, &to);
    ASSERT_TRUE(DragMouse(from, to));
    EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() < 10; }));
    ExpectSlider(20);
}

TEST_F(Keys, CtrlAndADigitSetTheSpeed) {
    Settle();
    Start();
    Press('3', kCtrl);
    ExpectSpeed("25");
    Press('4', kCtrl);
    ExpectSpeed("50");
    Press('6', kCtrl);
    ExpectSpeed("200");
    Press('7', kCtrl);
    ExpectSpeed("400");
    Press('5', kCtrl);
    ExpectSpeed("100");
    Press('0', kCtrl);
    Press('3', kCtrl);
    ExpectSpeed("25");
}

TEST_F(Keys, CtrlAndALetterOpenTheFileDialogs) {
    Settle();
    Start();
    ExpectDialog('L', kCtrl, "Select ADX...");
    ExpectDialog('S', kCtrl | kShift, "Choose file to save to...");
    ExpectDialog('L', kCtrl | kAlt, "Select datalog...");
    ExpectDialog('N', kCtrl, "Corvex Definition Editor");
    ExpectDialog(VK_F2, kCtrl, "Corvex Definition Editor");
}

TEST_F(Keys, CtrlSSavesTheDefinition) {
    Settle();
    Start();
    ExpectOutput("Loaded ");
    folder.Files().Put("harrier-8192.adx", "");
    Press('S', kCtrl);
    EXPECT_TRUE(Eventually([&] { return folder.Size("harrier-8192.adx") > 10000; }));
}

TEST_F(Keys, CtrlAltSpaceRecords) {
    Settle();
    Start();
    Connect();
    Press(VK_SPACE, kCtrl | kAlt);
    ExpectLeft("Log Recording");
    Press(VK_SPACE, kCtrl);
    CancelDialog(program->Id(), "Select/Create file to save...");
    ExpectLeft("ALDL: Connected");
}

// Typed into the text of the Output tab they would be lost to the commands.
TEST_F(Keys, WorkWhileTheOutputTextHasTheFocus) {
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
}

}  // namespace
}  // namespace corvex::test
