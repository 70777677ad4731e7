// Status, title and buttons as the session moves through its states.
#include <thread>

#include "controls/richstatic/RichStatic.h"
#include "tests/session/window/main/MainWindowHelper.h"

namespace corvex::test {
namespace {

class StatusTest : public MainWindowTest {
protected:
    // Asked by setting it, which gives the one before.
    std::uint32_t LeftColour(UINT message) const {
        const HWND panel = AsWindow(desktop.session.statusLeft);
        const LRESULT old = ::SendMessageA(panel, message, 0, 0);
        ::SendMessageA(panel, message, 0, static_cast<LPARAM>(old));
        return static_cast<std::uint32_t>(old);
    }
    LRESULT SliderPlace() const { return ::SendMessageA(Slider(), TBM_GETPOS, 0, 0); }
    void Drag(int code) {
        ::SendMessageA(AsWindow(session.logBarDialog), WM_HSCROLL, static_cast<WPARAM>(code), L(Slider()));
    }
    void ExpectLeft(const char* text, std::uint32_t textColour, std::uint32_t backColour) const {
        EXPECT_EQ(text, LeftText());
        EXPECT_EQ(textColour, LeftColour(RSM_SETTEXTCOLOR)) << text;
        EXPECT_EQ(backColour, LeftColour(RSM_SETBACKCOLOR)) << text;
    }
};

TEST_F(StatusTest, StartsNotConnected) {
    Start();
    ExpectLeft("ALDL: Not Connected", 0x000000, 0x00FFFF);
    EXPECT_EQ("", RightText());
    EXPECT_EQ("-x---x", Buttons());
    EXPECT_EQ("Corvex - ADX:   XDL:  (Speed: 100%)", Title());
    EXPECT_NE(0U, ::GetMenuState(::GetMenu(window), IDM_SPEED_100, MF_BYCOMMAND) & MF_CHECKED);
}

TEST_F(StatusTest, AScanGoesFromConnectingToConnectedAndBack) {
    StartWithDefinition();
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return session.connectionState == kConnecting; }));
    ASSERT_TRUE(Pumps([&] { return LeftText() == "ALDL: Connecting..."; }));
    ExpectLeft("ALDL: Connecting...", 0x000000, 0x82AAFF);
    EXPECT_EQ("-x---x", Buttons());
    serial.Answer({0xA0}, {3, 4}, 5);
    ASSERT_TRUE(Pumps([&] { return LeftText() == "ALDL: Connected"; }));
    ExpectLeft("ALDL: Connected", 0xFFFFFF, 0xFF0000);
    ASSERT_TRUE(Pumps([&] { return Buttons() == "-xx--x"; }));
    ASSERT_TRUE(Pumps([&] { return RightText().find(" Hz   Errors: 0") != std::string::npos; }));
    Command(IDM_SCAN);
    ASSERT_TRUE(Pumps([&] { return desktop.IsQuiet() && LeftText() == "ALDL: Not Connected"; }));
    EXPECT_EQ("", RightText());
    EXPECT_TRUE(Pumps([&] { return Buttons() == "-x---x"; }));
}

TEST_F(StatusTest, AWorkerDoesNotWaitForARefreshAndAsksOnce) {
    StartWithDefinition();
    session.connectionState = kConnecting;
    std::thread([&] {
        for (int i = 0; i < 100; ++i) {
            session.Calls().refreshStatus();
            session.Calls().refreshButtons();
        }
    }).join();  // while nobody looks at the messages
    EXPECT_EQ("ALDL: Not Connected", LeftText());
    for (const UINT asked : {static_cast<UINT>(kMessageRefreshStatus), static_cast<UINT>(kMessageRefreshButtons)}) {
        MSG message;
        ASSERT_NE(FALSE, ::PeekMessageA(&message, window, asked, asked, PM_REMOVE));
        ::DispatchMessageA(&message);
        EXPECT_FALSE(::PeekMessageA(&message, window, asked, asked, PM_REMOVE));
    }
    EXPECT_EQ("ALDL: Connecting...", LeftText());
    session.connectionState = kNotConnected;
    session.Calls().refreshStatus();
    EXPECT_EQ("ALDL: Not Connected", LeftText()) << "at once for the main thread";
    session.connectionState = kConnecting;
    session.Calls().refreshStatus();
    session.connectionState = kNotConnected;
    std::thread([&] { session.Calls().refreshStatus(); }).join();
    EXPECT_TRUE(Pumps([&] { return LeftText() == "ALDL: Not Connected"; }));
}

TEST_F(StatusTest, NorForTheSliderOrAFlashOfWhichTheNewestIsShown) {
    StartWithDefinition();
    session.Calls().setLogRange(200);
    std::thread([&] {
        for (std::uint32_t i = 0; i < 100; ++i) {
            session.Calls().setLogSlider(i);
            session.Calls().flash(std::to_string(i).c_str(), 0, 0xFFFFFF, 60000);
        }
    }).join();
    EXPECT_EQ(0, SliderPlace());
    Pump();
    EXPECT_EQ(99, SliderPlace());
    EXPECT_EQ("99", LeftText());
}

TEST_F(StatusTest, ASliderThatTheMainThreadMovesIsNotMovedBack) {
    StartWithDefinition();
    session.Calls().setLogRange(200);
    std::thread([&] { session.Calls().setLogSlider(50); }).join();
    session.Calls().setLogSlider(7);
    Pump();
    EXPECT_EQ(7, SliderPlace());
    std::thread([&] { session.Calls().setLogSlider(50); }).join();
    session.Calls().setLogRange(100);  // of another log
    Pump();
    EXPECT_EQ(7, SliderPlace());
    std::thread([&] { session.Calls().setLogSlider(60); }).join();
    Pump();
    EXPECT_EQ(60, SliderPlace());
}

TEST_F(StatusTest, PlaybackShowsTimeAndSlider) {
    StartWithDefinition();
    session.settings.SetLastLog(PutLog("long.xdl", {0, 60000, 120000}));
    Command(IDM_PAUSE);  // what the key for both sends
    ASSERT_TRUE(Pumps([&] { return session.log.sampleIndex != 0 && LeftText() == "Log Playing"; }));
    ExpectLeft("Log Playing", 0xFFFFFF, 0xFF0000);
    EXPECT_EQ("S--xx-", Buttons());
    EXPECT_NE(std::string::npos, RightText().find("Hz  0:0:00:000"));
    EXPECT_EQ(3, ::SendMessageA(Slider(), TBM_GETRANGEMAX, 0, 0));
    EXPECT_TRUE(Says("Playing "));

    Command(IDM_PAUSE);
    ASSERT_TRUE(Pumps([&] { return LeftText() == "Log Paused" && !session.log.IsPlaying(); }));
    ExpectLeft("Log Paused", 0x000000, 0x2873FF);
    ASSERT_TRUE(Rests(kLogReady));
    ::SendMessageA(window, kMessageRefreshButtons, 0, 0);
    EXPECT_EQ("Sx-x--", Buttons());

    Command(IDM_STOP);
    ASSERT_TRUE(Rests(kLogClosed));
    ASSERT_TRUE(Pumps([&] { return LeftText() == "ALDL: Not Connected"; }));
    EXPECT_EQ(0, SliderPlace());
    EXPECT_TRUE(Says("Playback stopped"));
    EXPECT_EQ("-x---x", Buttons());
}

TEST_F(StatusTest, BlinksGreenAndRed) {
    Start();
    ::SendMessageA(window, WM_TIMER, 1, 0);
    EXPECT_EQ(0x00FF00U, LeftColour(RSM_SETBACKCOLOR));
    ::SendMessageA(window, WM_TIMER, 1, 0);
    EXPECT_EQ(0x0000FFU, LeftColour(RSM_SETBACKCOLOR));
    EXPECT_EQ(2U, session.blinkCount);
}

TEST_F(StatusTest, TheSpeedInForceIsCheckedAndNamed) {
    Start();
    const auto expectChecked = [this](unsigned checked) {
        for (const unsigned id : {32809U, 32810U, 32811U, 32812U, 32813U, 32815U})
            EXPECT_EQ(id == checked, (::GetMenuState(::GetMenu(window), id, MF_BYCOMMAND) & MF_CHECKED) != 0) << id;
    };
    for (const unsigned command : {32809U, 32810U, 32812U, 32813U, 32811U, 32809U}) {
        Command(command);
        expectChecked(command);
    }
    EXPECT_EQ("Corvex - ADX:   XDL:  (Speed: 400%)", Title());
    session.SetSpeed(3.0F);
    Command(32815);
    expectChecked(32815);
    EXPECT_EQ(3.0F, session.log.speed);
}

TEST_F(StatusTest, JumpKeysGoWhereTheyPoint) {
    StartWithDefinition();
    ASSERT_NO_FATAL_FAILURE(Play(std::vector<std::uint32_t>(40, 60000)));
    Command(32832);  // "]"
    ASSERT_TRUE(Pumps([&] { return session.log.sampleIndex >= 10; }));
    ::SendMessageA(Slider(), TBM_SETPOS, TRUE, 30);
    Drag(TB_THUMBPOSITION);
    ASSERT_TRUE(Pumps([&] { return session.log.sampleIndex >= 30; }));
    Command(32833);  // "["
    EXPECT_LE(session.log.sampleIndex, 22U);
    EXPECT_GE(session.log.sampleIndex, 20U);
}

TEST_F(StatusTest, ADraggedSliderIsLeftToTheHand) {
    StartWithDefinition();
    ASSERT_NO_FATAL_FAILURE(Play({0, 60000, 120000, 180000}));
    ::SendMessageA(Slider(), TBM_SETPOS, TRUE, 2);
    Drag(TB_THUMBTRACK);
    session.Calls().setLogSlider(1);
    EXPECT_EQ(2, SliderPlace());
    Drag(TB_ENDTRACK);
    session.Calls().setLogSlider(1);
    EXPECT_EQ(1, SliderPlace());
}

TEST_F(StatusTest, ASliderThatIsSwitchedOffHandsTheKeysBack) {
    StartWithDefinition();
    ::ShowWindow(window, SW_SHOW);
    ASSERT_NO_FATAL_FAILURE(Play());
    ASSERT_TRUE(Pumps([&] { return ::IsWindowEnabled(Slider()) != FALSE; }));
    ::SetFocus(Slider());
    Command(IDM_STOP);
    ASSERT_TRUE(Rests(kLogClosed));
    ASSERT_TRUE(Pumps([&] { return ::IsWindowEnabled(Slider()) == FALSE; }));
    EXPECT_EQ(window, ::GetFocus());
}

}  // namespace
}  // namespace corvex::test
