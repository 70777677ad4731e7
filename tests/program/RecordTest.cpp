#include "tests/program/ProgramTest.h"
#include "tests/program/driver/LogFiles.h"

namespace corvex::test {
namespace {

class Record : public ProgramTest {
protected:
    // A recording with samples in it.
    void RecordSome() {
        Connect();
        Window().Send(kRecord);
        ExpectLeft("Log Recording");
        ExpectBar({.stop = true});
        const auto grows = [this] { return folder.Size("temp.xdl") > 400; };
        ASSERT_TRUE(Eventually(grows));
    }
    void ExpectWholeLog(const std::string& file) {
        const std::string log = folder.Files().Content(file);
        ASSERT_GT(log.size(), 400U);
        const LogHeader header = HeaderOf(log);
        EXPECT_EQ(header.version, 3U);
        EXPECT_EQ(header.endMark, log.size() + 1);
        EXPECT_GE(header.sampleCount, 3U);
    }
    std::string LastLog() {
        CloseProgram();
        return folder.Settings().at("lastxdlpath");
    }
};

TEST_F(Record, IsSavedToANewName) {
    Settle();
    Start();
    RecordSome();
    EXPECT_NE(Window().RightText().find("Errors: 0"), std::string::npos) << Window().RightText();
    Window().Send(kStop);
    ChooseFile(program->Id(), kSaveLogTitle, folder.Name("drive.xdl"));
    ExpectOutput("Log saved to " + folder.Name("drive.xdl"));
    EXPECT_TRUE(Window().OutputHas("Recording stopped"));
    ExpectLeft("ALDL: Connected");
    ExpectBar({.play = true, .record = true, .load = true});
    ExpectWholeLog("drive.xdl");
    EXPECT_FALSE(folder.Files().Has("temp.xdl"));
    EXPECT_EQ(LastLog(), folder.Name("drive.xdl"));
}

TEST_F(Record, NeverReplacesALog) {
    folder.Files().Put("old.xdl", "a log of great value");
    Settle({{"lastxdlpath", "C:\\before.xdl"}});
    Start();
    RecordSome();
    Window().Press(kLogToolbarId, kStopButton);
    ChooseFile(program->Id(), kSaveLogTitle, folder.Name("old.xdl"));
    EXPECT_EQ(CloseBox(program->Id(), "Cannot overwrite"),
              "Log save failed. Log backup saved in install directory as \"temp.xdl\"");
    ExpectOutput("Cannot overwrite existing log: " + folder.Name("old.xdl") + ", error 0xB7");
    EXPECT_EQ(folder.Files().Content("old.xdl"), "a log of great value");
    ExpectWholeLog("temp.xdl");
    EXPECT_EQ(LastLog(), "C:\\before.xdl");
}

TEST_F(Record, StaysInTheScratchFileWhenNoNameIsGiven) {
    Settle({{"lastxdlpath", "C:\\before.xdl"}});
    Start();
    RecordSome();
    Window().Send(kStop);
    CancelDialog(program->Id(), kSaveLogTitle);
    ExpectBar({.play = true, .record = true, .load = true});
    ExpectOutput("Recording stopped");
    EXPECT_FALSE(Window().OutputHas("Log saved"));
    ExpectWholeLog("temp.xdl");
    EXPECT_EQ(LastLog(), "C:\\before.xdl");
}

TEST_F(Record, GoesOnWhileTheSaveDialogWaitsForTheScanOnly) {
    Settle();
    Start();
    RecordSome();
    Window().Send(kStop);
    WaitForDialog(program->Id(), kSaveLogTitle);
    const std::string before = Window().Output();
    EXPECT_TRUE(Eventually([&] { return Window().Output() != before; })) << "the scan stands still";
    CancelDialog(program->Id(), kSaveLogTitle);
}

TEST_F(Record, ShowsItsTimeWhenNoLineIsConnected) {
    Settle();
    Start();
    RecordSome();
    Window().Send(kScan);
    EXPECT_TRUE(Eventually([&] { return Window().RightText().find(" Hz  0:0:") != std::string::npos; }))
        << Window().RightText();
    EXPECT_EQ(Window().LeftText(), "Log Recording");
    ExpectBar({.stop = true});
    Window().Send(kStop);
    ChooseFile(program->Id(), kSaveLogTitle, folder.Name("drive.xdl"));
    ExpectLeft("ALDL: Not Connected");
    ExpectWholeLog("drive.xdl");
}

TEST_F(Record, IsPlayedBackAsItCame) {
    Settle();
    Start();
    RecordSome();
    Window().Send(kStop);
    ChooseFile(program->Id(), kSaveLogTitle, folder.Name("drive.xdl"));
    ExpectOutput("Log saved to ");
    Window().Send(kScan);
    ExpectLeft("ALDL: Not Connected");
    const std::uint32_t samples = HeaderOf(folder.Files().Content("drive.xdl")).sampleCount;
    Window().Send(kPlay);
    ExpectLeft("Log Playing");
    EXPECT_EQ(Window().SliderEnd(), static_cast<int>(samples));
    ExpectOutput("Playback stopped");
    ExpectLeft("ALDL: Not Connected");
}

}  // namespace
}  // namespace corvex::test
