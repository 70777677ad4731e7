// A recording from its first sample to its playback.
#include "tests/program/ProgramTest.h"
#include "tools/driver/LogFiles.h"
#include "tools/driver/ReplyLines.h"

namespace corvex::test {
namespace {

class Log : public ProgramTest {
protected:
    // Replies go on coming into the recording.
    void Record() {
        Window().Send(kRecord);
        ExpectLeft("Log Recording");
        ExpectBar({.stop = true});
        EXPECT_TRUE(Eventually([&] { return folder.Size("temp.xdl") > 400; })) << Window().Output();
    }
    // The one file whose name begins so; empty when there is none.
    std::string Kept() const {
        for (const auto& entry : std::filesystem::directory_iterator(folder.Files().Path())) {
            const std::string name = entry.path().filename().string();
            if (name.starts_with("drive-")) return name;
        }
        return {};
    }
};

TEST_F(Log, IsRecordedSavedUnderANewNameAndPlayedBack) {
    Settle();
    Start();
    Connect();
    Record();
    EXPECT_NE(Window().RightText().find("Errors: 0"), std::string::npos) << Window().RightText();
    Window().Press(kLogToolbarId, kStopButton);
    WaitForDialog(program->Id(), kSaveLogTitle);
    const std::string before = Window().Output();
    EXPECT_TRUE(Eventually([&] { return Window().Output() != before; })) << "the scan waits for the dialog";
    ChooseFile(program->Id(), kSaveLogTitle, folder.Name("drive.xdl"));
    ExpectOutput("Log saved to " + folder.Name("drive.xdl"));
    ExpectLeft("ALDL: Connected");
    ExpectBar({.play = true, .record = true, .load = true});
    EXPECT_FALSE(folder.Files().Has("temp.xdl"));
    const std::string log = folder.Files().Content("drive.xdl");
    const LogHeader header = HeaderOf(log);
    EXPECT_EQ(header.version, 3U);
    EXPECT_EQ(header.endMark, log.size() + 1);
    EXPECT_GE(header.sampleCount, 3U);

    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
    Window().Send(kPlay);
    ExpectLeft("Log Playing");
    EXPECT_EQ(Window().SliderEnd(), static_cast<int>(header.sampleCount));
    ExpectOutput("Playback stopped");
    ExpectLeft("ALDL: Not Connected");
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastxdlpath"), folder.Name("drive.xdl"));
}

TEST_F(Log, IsChosenAndPlaysToItsEnd) {
    folder.Files().Put("drive.xdl", MakeEvenLog(12, 50));
    Settle();
    Start();
    Window().Send(kSpeed50);
    Window().Press(kLogToolbarId, kLoadButton);
    ChooseFile(program->Id(), "Select datalog...", folder.Name("drive.xdl"));
    std::string title = "Corvex - ADX: ";
    title.append(folder.ShortName("harrier-8192.adx")).append("  XDL: ").append(folder.ShortName("drive.xdl"));
    title.append(" (Speed: 50%)");
    EXPECT_TRUE(Eventually([&] { return Window().Title() == title; })) << Window().Title();
    Window().Press(kLogToolbarId, kPlayButton);
    ExpectBar({.slider = true, .stop = true, .pause = true});
    ExpectOutput("0.550: Command/Reply Success");
    ExpectOutput("Playback stopped");
    ExpectBar({.play = true, .load = true});
    EXPECT_TRUE(Eventually([&] { return Window().SliderPosition() == 0 && Window().RightText().empty(); }));
    EXPECT_EQ(CountReplies(Window().OutputLines()).good, 12);
    EXPECT_EQ(Window().Title(), title) << "the speed is kept over opening a log";
}

TEST_F(Log, ThatWasNotSavedGetsANameOfItsOwnAndIsToldOfAtTheNextStart) {
    Settle();
    Start();
    Connect();
    Record();
    Window().Send(kStop);
    CancelDialog(program->Id(), kSaveLogTitle);
    const std::string drive = folder.Files().Content("temp.xdl");
    Record();
    ExpectOutput("The recording before was not saved. It is now " + folder.Name("drive-"));
    ASSERT_NE(Kept(), "");
    EXPECT_EQ(folder.Files().Content(Kept()), drive);
    CloseProgram();
    Start();
    ExpectOutput("was not saved. It is in " + folder.Name("temp.xdl"));
}

}  // namespace
}  // namespace corvex::test
