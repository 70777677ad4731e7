#include <algorithm>
#include <regex>

#include "tests/program/ProgramTest.h"
#include "tests/program/driver/LogFiles.h"

namespace corvex::test {
namespace {

class Playback : public ProgramTest {
protected:
    // Plays a log of these times.
    void Play(const std::string& log) {
        folder.Files().Put("drive.xdl", log);
        Settle({{"lastxdlpath", folder.Name("drive.xdl")}});
        Start();
        Window().Send(kPlay);
        ExpectLeft("Log Playing");
    }
    void Pause() {
        Window().Press(kLogToolbarId, kPauseButton);
        ExpectLeft("Log Paused");
        ExpectBar({.slider = true, .play = true, .stop = true});
    }
    void ExpectClosed() {
        ExpectLeft("ALDL: Not Connected");
        ExpectBar({.play = true, .load = true});
        EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() == 0; }));
        EXPECT_TRUE(Eventually([&] { return Window().RightText().empty(); })) << Window().RightText();
        EXPECT_TRUE(Window().OutputHas("Playback stopped"));
    }
};

TEST_F(Playback, RunsToItsEndAndClosesTheLog) {
    Play(MakeEvenLog(12, 50));
    ExpectBar({.slider = true, .stop = true, .pause = true});
    EXPECT_EQ(Window().SliderEnd(), 12);
    EXPECT_TRUE(Eventually([&] {
        return std::regex_match(Window().RightText(), std::regex("[0-9]+\\.[0-9]{2} Hz  0:0:00:[0-9]{3}"));
    })) << Window().RightText();
    ExpectOutput("Playing " + folder.Name("drive.xdl"));
    ExpectOutput("0.550: Command/Reply Success");
    ExpectClosed();
    const auto lines = Window().OutputLines();
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& line) { return line.find("Reply Success") != std::string::npos; }),
              12);
}

TEST_F(Playback, PausesAndGoesOn) {
    Play(MakeEvenLog(30, 50));
    EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() > 2; }));
    Pause();
    EXPECT_TRUE(Window().OutputHas("Playback paused"));
    Resume();
    ExpectOutput("Playback unpaused");
    ExpectLeft("Log Playing");
    ExpectClosed();
}

TEST_F(Playback, IsStoppedWhilePaused) {
    Play(MakeEvenLog(30, 50));
    EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() > 0; }));
    Pause();
    Window().Press(kLogToolbarId, kStopButton);
    ExpectClosed();
}

TEST_F(Playback, IsStoppedWhileItPlays) {
    Play(MakeEvenLog(3, 100000));
    Window().Send(kStop);
    ExpectClosed();
}

TEST_F(Playback, OfAMissingLogSaysSo) {
    Settle({{"lastxdlpath", "C:\\nowhere.xdl"}});
    Start();
    Window().Press(kLogToolbarId, kPlayButton);
    ExpectOutput("Could not open C:\\nowhere.xdl, error 0xC");
    ExpectBar({.play = true, .load = true});
}

TEST_F(Playback, OfTheWrongVersionSaysSo) {
    std::string log = MakeEvenLog(3, 10);
    log[0] = '\2';
    folder.Files().Put("old.xdl", log);
    Settle({{"lastxdlpath", folder.Name("old.xdl")}});
    Start();
    Window().Send(kPlay);
    ExpectOutput("Could not open " + folder.Name("old.xdl") + ", error 0xD");
}

TEST_F(Playback, WithAnotherDefinitionSaysSoAndPlaysOn) {
    folder.Files().Put("drive.xdl", MakeEvenLog(3, 10));
    Settle({{"lastxdlpath", folder.Name("drive.xdl")}, {"lastadxpath", folder.TakeExample("merlin-160.adx")}});
    Start();
    Window().Send(kPlay);
    ExpectOutput("Log playback: Command not found in def. Wrong definition?");
    ExpectClosed();
}

TEST_F(Playback, OfAChosenLogAndItsNameInTheTitle) {
    folder.Files().Put("drive.xdl", MakeEvenLog(3, 10));
    Settle();
    Start();
    Window().Send(kSpeed400);
    Window().Press(kLogToolbarId, kLoadButton);
    ChooseFile(program->Id(), "Select datalog...", folder.Name("drive.xdl"));
    std::string title = "Corvex - ADX: ";
    title.append(folder.ShortName("harrier-8192.adx")).append("  XDL: ").append(folder.ShortName("drive.xdl"));
    title.append(" (Speed: 400%)");
    EXPECT_TRUE(Eventually([&] { return Window().Title() == title; })) << Window().Title();
    Window().Send(kPlay);
    ExpectClosed();
    EXPECT_EQ(Window().Title(), title) << "the speed is kept over opening a log";
}

TEST_F(Playback, RunsBesideAScan) {
    folder.Files().Put("drive.xdl", MakeEvenLog(10, 50));
    Settle({{"lastxdlpath", folder.Name("drive.xdl")}});
    Start();
    Connect();
    Window().Send(kPlay);
    ExpectLeft("Log Playing");
    EXPECT_NE(Window().RightText().find("Errors:"), std::string::npos) << Window().RightText();
    ExpectOutput("Playback stopped");
}

}  // namespace
}  // namespace corvex::test
