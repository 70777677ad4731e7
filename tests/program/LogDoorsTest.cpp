// The end of one log and the beginning of the next, in the running program.
#include <algorithm>

#include "tests/program/ProgramTest.h"
#include "tests/program/driver/LogFiles.h"

namespace corvex::test {
namespace {

class LogDoors : public ProgramTest {
protected:
    void StartWithLog(const std::string& log) {
        folder.Files().Put("drive.xdl", log);
        Settle({{"lastxdlpath", folder.Name("drive.xdl")}});
        Start();
    }
    void Record() {
        Window().Send(kRecord);
        ExpectLeft("Log Recording");
        ExpectRecords();
    }
    // Replies go on coming into the recording.
    void ExpectRecords() {
        const auto before = folder.Size("temp.xdl");
        EXPECT_TRUE(Eventually([&] { return folder.Size("temp.xdl") > before + 200; })) << Window().Output();
    }
    std::size_t Lines(const std::string& part) {
        const auto lines = Window().OutputLines();
        return static_cast<std::size_t>(std::count_if(
            lines.begin(), lines.end(), [&](const auto& line) { return line.find(part) != std::string::npos; }));
    }
    // The one file whose name begins so, with its folder; empty when there is none.
    std::string Kept() const {
        for (const auto& entry : std::filesystem::directory_iterator(folder.Files().Path())) {
            if (entry.path().filename().string().starts_with("drive-")) return entry.path().string();
        }
        return {};
    }
};

TEST_F(LogDoors, PauseShowsWhatMayBePressed) {
    StartWithLog(MakeEvenLog(200, 50));
    for (int round = 0; round < 20; ++round) {
        Window().Send(kPlay);
        ExpectBar({.slider = true, .stop = true, .pause = true});
        Window().Send(kPlay);
        ExpectBar({.slider = true, .play = true, .stop = true});
    }
}

TEST_F(LogDoors, UnsavedRecordingGetsANameOfItsOwn) {
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
    EXPECT_EQ(folder.Files().Content(std::filesystem::path(Kept()).filename().string()), drive);
    CloseProgram();
    Start();
    ExpectOutput("was not saved. It is in " + folder.Name("temp.xdl"));
}

TEST_F(LogDoors, RecordingIsEndedByStopAlone) {
    StartWithLog(MakeEvenLog(3, 10));
    Connect();
    Record();
    for (int repeat = 0; repeat < 5; ++repeat)
        Window().Send(kPlay);
    Window().Send(kLoadLog);
    Window().Send(kJumpBackward);
    Window().Send(kRecord);
    ExpectRecords();
    for (const char* what : {"Play", "Load log", "Jump", "Record"})
        EXPECT_EQ(Lines(std::string(what) + " does nothing while a recording runs"), 1U) << Window().Output();
    EXPECT_FALSE(Window().OutputHas("Playing "));
    ExpectLeft("Log Recording");
}

TEST_F(LogDoors, RecordingBesideAScanRecordsAfterAPlayback) {
    StartWithLog(MakeEvenLog(3, 10));
    Connect();
    Window().Send(kPlay);
    ExpectOutput("Playback stopped");
    ExpectLeft("ALDL: Connected");
    Record();
}

TEST_F(LogDoors, RecordOnAPausedLogRecordsTheScan) {
    StartWithLog(MakeEvenLog(3, 100000));
    Connect();
    Window().Send(kPlay);
    ExpectLeft("Log Playing");
    Window().Send(kPlay);
    ExpectLeft("Log Paused");
    Record();
}

}  // namespace
}  // namespace corvex::test
