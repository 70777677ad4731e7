#include <cstring>

#include "platform/FileMove.h"
#include "session/LogName.h"
#include "tests/session/LogSessionHelper.h"
#include "tests/support/HeldSyncs.h"

namespace corvex::test {
namespace {

constexpr char kAskedForName[] = "ask save Select/Create file to save...";

class SaveFlowTest : public LogSessionTest {
protected:
    // A recording of three replies, stopped; the user answers with the name.
    void Save(const std::optional<std::string>& name) {
        recorder.answer = name;
        RecordScan(2);
        recorder.Take();
        ForgetPosts();
        text.Clear();
        session.StopCommand();
    }
    // Without the message of the disk, which comes while the user is asked, or before.
    Calls TakeAnswers() {
        Calls calls = recorder.Take();
        EXPECT_EQ(1, std::erase(calls, kStoppedPlayback));
        return calls;
    }
    static std::string Lines(const std::string& second) { return "Recording stopped\r\n" + second; }
    const std::vector<Read> kRecorded{{0, {1, 2}}, {10, {3, 4}}, {20, {5, 6}}};

    TestFolder elsewhere;
    const ScopedCurrentFolder here{elsewhere};
};

TEST_F(SaveFlowTest, MovesTheRecordingToANewName) {
    const std::string name = folder.Name("drive.xdl");
    Save(name);
    EXPECT_FALSE(folder.Has("temp.xdl"));
    EXPECT_EQ(kRecorded, ReadLog(name));
    EXPECT_EQ(name, session.settings.lastxdlpath);
    EXPECT_EQ(kLogClosed, session.log.State());
    EXPECT_EQ(Lines("Log saved to " + name), text.Text());
    EXPECT_EQ("saved " + name, recorder.kept);
    EXPECT_EQ((Calls{kAskedForName, "slider 0", "buttons", "status"}), TakeAnswers());
}

// The dialog has asked whether to replace it, but a log is never lost.
TEST_F(SaveFlowTest, ExistingFileAndRecordingAreBothKept) {
    const std::string name = folder.Name("drive.xdl");
    folder.Put("drive.xdl", "precious");
    session.settings.SetLastLog("before");
    Save(name);
    EXPECT_EQ("precious", folder.Content("drive.xdl"));
    EXPECT_EQ(kRecorded, ReadLog(folder.Name("temp.xdl")));
    EXPECT_STREQ("before", session.settings.lastxdlpath);
    char line[600];
    std::snprintf(line, sizeof line, "Cannot overwrite existing log: %s, error 0x%X", name.c_str(),
                  static_cast<unsigned>(MoveToNewName(folder.Name("temp.xdl"), name)));
    EXPECT_EQ(Lines(line), text.Text());
    EXPECT_EQ((Calls{kAskedForName,
                     "box Cannot overwrite: Log save failed. Log backup saved in install directory as \"temp.xdl\"",
                     "slider 0", "buttons", "status"}),
              TakeAnswers());
}

TEST_F(SaveFlowTest, CancellingKeepsTheRecordingInTheScratchFile) {
    session.settings.SetLastLog("before");
    elsewhere.Put("temp.xdl", "not ours");
    Save(std::nullopt);
    EXPECT_EQ(kRecorded, ReadLog(folder.Name("temp.xdl")));
    EXPECT_STREQ("before", session.settings.lastxdlpath);
    EXPECT_EQ(kLogClosed, session.log.State());
    EXPECT_EQ("Recording stopped", text.Text());
    EXPECT_EQ(folder.Name("temp.xdl"), recorder.kept);
    EXPECT_EQ((Calls{kAskedForName, "buttons", "status"}), TakeAnswers());
    EXPECT_TRUE(elsewhere.Has("temp.xdl"));
}

TEST_F(SaveFlowTest, SuggestsTheDefinitionAndTheStart) {
    const auto expect = [this](const std::string& begin) {
        Save(std::nullopt);
        EXPECT_EQ(SuggestedLogName(begin, session.log.header.startTime), recorder.suggested);
    };
    expect("");
    session.origin.Loaded(true);
    std::strcpy(session.settings.lastadxpath, "/cars/harrier.adx");
    expect("harrier");
    EXPECT_EQ(session.log.recorded, 3U);
}

TEST_F(SaveFlowTest, SavingRemovesTheBareNameFromTheCurrentFolder) {
    elsewhere.Put("temp.xdl", "left behind");
    Save(folder.Name("drive.xdl"));
    EXPECT_FALSE(elsewhere.Has("temp.xdl"));
}

TEST_F(SaveFlowTest, LogSavedUnderTheBareNameStays) {
    Save("temp.xdl");
    EXPECT_EQ(kRecorded, ReadLog(elsewhere.Name("temp.xdl")));
    EXPECT_FALSE(folder.Has("temp.xdl"));
    Save(folder.Name("drive.xdl"));
    Save(elsewhere.Name("temp.xdl"));
    EXPECT_EQ(kRecorded, ReadLog(elsewhere.Name("temp.xdl")));
}

TEST_F(SaveFlowTest, ScratchFileItselfMayBeChosen) {
    const ScopedCurrentFolder home(folder);
    Save(folder.Name("temp.xdl"));
    EXPECT_EQ(kRecorded, ReadLog(folder.Name("temp.xdl")));
    EXPECT_EQ(folder.Name("temp.xdl"), session.settings.lastxdlpath);
    EXPECT_EQ(0U, recorder.Count("box"));
}

// The end of a log may come just when a recording was begun. On the playback thread nobody may be asked anything.
TEST_F(SaveFlowTest, EndOfAPlaybackLeavesARecordingAlone) {
    session.RecordCommand();
    recorder.Take();
    session.callback.OnLogEnd();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ(kLogRecording, session.log.State());
    EXPECT_EQ((Calls{"buttons", "status"}), recorder.Take());
}

// What closing the program does.
TEST_F(SaveFlowTest, RecordingEndedByTheProgramsEndStaysInTheScratchFile) {
    recorder.answer = folder.Name("drive.xdl");
    RecordScan(2);
    session.StartStopThread(kStopScan | kStopLog | kStopWindow);
    text.Clear();
    ASSERT_TRUE(Rests(kLogClosed));
    EXPECT_EQ("Playback stopped", text.Text());
    EXPECT_EQ(kRecorded, ReadLog(folder.Name("temp.xdl")));
    EXPECT_FALSE(folder.Has("drive.xdl"));
}

TEST_F(SaveFlowTest, SessionThatGoesFinishesItsRecording) {
    auto brief = std::make_unique<SessionState>(recorder.Calls(), serial);
    brief->RecordCommand();
    brief.reset();
    DataLogEngine log;
    EXPECT_EQ(kLogSuccess, log.Open(folder.Name("temp.xdl").c_str(), kLogForLooking));
}

// On a disk that takes its time.
class SlowSaveTest : public SaveFlowTest {
protected:
    SlowSaveTest() {
        recorder.whileAsked = nullptr;
        recorder.answer = folder.Name("drive.xdl");
        slow.RecordCommand();
        recorder.Take();
    }
    ~SlowSaveTest() override { disk.Release(); }
    // As a message loop would, until all is done.
    bool Ends() {
        return Eventually([this] {
            if (recorder.Count(kStoppedPlayback) > handled) {
                slow.OnLogStopped();
                ++handled;
            }
            return slow.WaitForThreads(std::chrono::milliseconds(0)) && !slow.IsStoppingLog();
        });
    }

    HeldSyncs disk;
    std::size_t handled = 0;
    SessionState slow{recorder.Calls(), serial, disk};
};

TEST_F(SlowSaveTest, NameIsGivenWhenTheDiskHasTheRecording) {
    slow.StopCommand();
    EXPECT_FALSE(slow.WaitForThreads(std::chrono::milliseconds(100)));
    EXPECT_TRUE(folder.Has("temp.xdl"));
    EXPECT_FALSE(folder.Has("drive.xdl"));
    disk.Release();
    EXPECT_TRUE(Ends());
    EXPECT_FALSE(folder.Has("temp.xdl"));
    EXPECT_TRUE(folder.Has("drive.xdl"));
    EXPECT_EQ(folder.Name("drive.xdl"), slow.settings.lastxdlpath);
    EXPECT_EQ(1U, recorder.Count(kAskedForName));
}

TEST_F(SlowSaveTest, RecordMeanwhileIsCarriedOutThen) {
    recorder.answer.reset();
    slow.StopCommand();
    slow.RecordCommand();
    EXPECT_EQ(kLogClosed, slow.log.State());
    disk.Release();
    EXPECT_TRUE(Ends());
    EXPECT_EQ(kLogRecording, slow.log.State());
}

TEST_F(SlowSaveTest, StopMeanwhileForgetsWhatWasPressedAndNotTheName) {
    slow.StopCommand();
    slow.RecordCommand();
    slow.StopCommand();
    disk.Release();
    EXPECT_TRUE(Ends());
    EXPECT_EQ(kLogClosed, slow.log.State());
    EXPECT_TRUE(folder.Has("drive.xdl"));
    EXPECT_EQ(1U, recorder.Count(kAskedForName));
}

TEST_F(SlowSaveTest, SaysWhatTheDiskDidNotTake) {
    slow.debug.edit = &text;
    disk.fails = true;
    slow.StopCommand();
    disk.Release();
    EXPECT_TRUE(Ends());
    EXPECT_NE(std::string::npos, text.Text().find("The disk says that it does not have all of the recording!"));
}

// The window may have gone by then, and nobody takes messages any more.
TEST_F(SaveFlowTest, NameThatWasGivenIsNotForgottenAtTheEnd) {
    recorder.whileAsked = nullptr;
    recorder.answer = folder.Name("drive.xdl");
    HeldSyncs disk;
    auto brief = std::make_unique<SessionState>(recorder.Calls(), serial, disk);
    brief->RecordCommand();
    brief->StopCommand();
    disk.Release();
    brief.reset();
    EXPECT_TRUE(folder.Has("drive.xdl"));
}

}  // namespace
}  // namespace corvex::test
