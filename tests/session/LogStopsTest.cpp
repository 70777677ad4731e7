// The moments between the end of one log and the beginning of the next.
#include "session/StatusText.h"
#include "tests/session/LogSessionHelper.h"

namespace corvex::test {
namespace {

class LogStopsTest : public LogSessionTest {
protected:
    // A short log has played to its end; nobody has handled the message yet.
    void PlayToTheEnd() {
        Choose(PutLog("short.xdl", {0, 0, 0}));
        session.PlayCommand();
        ASSERT_TRUE(Eventually([&] { return !session.log.IsPlaying(); }));
    }
    LogStopsTest() {
        recorder.onReplyEnded = [this](const DataAcqStatus& status, PacketView) {
            if (status.source == 0 || !holds_.exchange(false)) return;
            reached_.Set();
            released_.Wait();
        };
    }
    // What still runs must not find the hook gone.
    ~LogStopsTest() override {
        Release();
        session.StartStopThread(kStopScan | kStopLog);
        EXPECT_TRUE(WaitForThreads());
        session.log.WaitForPlayback();
    }
    // The playback thread stands in the middle of a delivery until it is released.
    void PlayHeld() {
        Choose(PutLog("held.xdl", {0, 0, 0, kFarAway}));
        holds_ = true;
        session.PlayCommand();
        reached_.Wait();
    }
    void Release() { released_.Set(); }
    // A scan that runs until the test ends it.
    void Connect() {
        AnswerAll();
        session.ToggleScan();
        ASSERT_TRUE(Eventually([&] { return session.connectionState == kConnected; }));
    }
    bool Grows() {
        const std::size_t before = folder.Content("temp.xdl").size();
        return Eventually(
            [&] { return session.log.State() == kLogRecording && folder.Content("temp.xdl").size() > before; });
    }
    void EndScan() {
        session.ToggleScan();
        ASSERT_TRUE(WaitForThreads());
    }
    // As a message loop would have it, sooner or later.
    bool Comes(std::uint32_t state) {
        return Eventually([&] {
            HandlePosts();
            return session.log.State() == state;
        });
    }
    std::string LongLog() const { return PutLog("long.xdl", {0, kFarAway, kFarAway}); }

private:
    std::atomic<bool> holds_{false};
    AutoResetEvent reached_{false}, released_{false};
};

// Whoever sees that the playback has ended sees that its stop is not done, and what is pressed then comes behind it.
TEST_F(LogStopsTest, PlayAfterTheEndPlaysOn) {
    for (int round = 0; round < 50; ++round) {
        PlayToTheEnd();
        EXPECT_TRUE(session.IsStoppingLog());
        Choose(LongLog());
        session.PlayPauseCommand();
        ASSERT_TRUE(Comes(kLogPlaying));
        ASSERT_TRUE(PlaysUpTo(2));
        session.StopCommand();
        ASSERT_TRUE(Rests(kLogClosed));
        EXPECT_FALSE(session.IsStoppingLog());
    }
}

// Its state still says that it plays until the stop's thread has got so far.
TEST_F(LogStopsTest, LogThatIsEndingIsNotPausedButPlayedAgain) {
    PlayHeld();
    session.StopCommand();
    ASSERT_TRUE(Eventually([&] { return session.log.State() == kLogStopRequested; }));
    session.log.state = kLogPlaying;
    session.PlayPauseCommand();
    EXPECT_EQ(kNotConnected, session.connectionState);
    session.log.state = kLogStopRequested;
    Release();
    ASSERT_TRUE(Eventually([&] {
        HandlePosts();
        return recorder.Count("clear monitors") == 2;
    }));
}

TEST_F(LogStopsTest, RecordAfterTheEndRecordsOn) {
    session.connectionState = kConnected;
    for (int round = 0; round < 50; ++round) {
        PlayToTheEnd();
        session.RecordCommand();
        ASSERT_TRUE(Rests(kLogRecording));
        session.StopCommand();
        ASSERT_EQ(kLogClosed, session.log.State());
    }
}

TEST_F(LogStopsTest, SecondStopDoesNotEndThePlayBehindIt) {
    PlayWaiting();
    session.PauseCommand();
    ASSERT_TRUE(Rests(kLogReady));
    session.StopCommand();
    session.StopCommand();
    ASSERT_TRUE(recorder.WaitFor(kStoppedPlayback, 2));
    text.Clear();
    session.OnLogStopped();
    EXPECT_EQ("", text.Text());  // the other stop is still to come
    session.PlayCommand();
    session.OnLogStopped();
    EXPECT_EQ(kLogPlaying, session.log.State());
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ(kLogPlaying, session.log.State());
}

TEST_F(LogStopsTest, MessageThatNoStopWasStartedForDoesNothing) {
    PlayWaiting();
    session.OnLogStopped();
    EXPECT_EQ(kLogPlaying, session.log.State());
    session.StopCommand();
    ASSERT_TRUE(Rests(kLogClosed));
    session.RecordCommand();
    session.OnLogStopped();
    EXPECT_EQ(kLogRecording, session.log.State());
}

TEST_F(LogStopsTest, ButtonsAreShownOnceMoreWhenAPauseHasComeToRest) {
    std::atomic<std::uint32_t> seen{99};
    recorder.onNoted = [&](const std::string& call) {
        if (call == "buttons" || call == "status") seen = session.log.State();
    };
    for (int round = 0; round < 50; ++round) {
        PlayWaiting();
        session.PauseCommand();
        ASSERT_TRUE(recorder.WaitFor(kPlaybackRests));
        EXPECT_EQ(kLogReady, seen);
        session.StopCommand();
        ASSERT_TRUE(Rests(kLogClosed));
        ForgetPosts();
        recorder.Take();
    }
    session.log.WaitForPlayback();
    recorder.onNoted = nullptr;
}

TEST_F(LogStopsTest, PlayGoesOnWithAPauseThatIsNotAtRest) {
    PlayHeld();
    session.PauseCommand();
    session.PlayPauseCommand();
    EXPECT_EQ(kLogStopRequested, session.log.State());
    EXPECT_EQ(1U, recorder.Count("clear monitors"));
    Release();
    ASSERT_TRUE(Comes(kLogPlaying));
    EXPECT_EQ(1U, recorder.Count("clear monitors"));  // the same log, from where it stood
    ASSERT_TRUE(PlaysUpTo(4));
    EXPECT_EQ(3U, recorder.Count("reply 0 2"));
}

TEST_F(LogStopsTest, ThirdPressTakesTheSecondBack) {
    PlayHeld();
    session.PlayPauseCommand();
    session.PlayPauseCommand();
    session.PlayPauseCommand();
    Release();
    ASSERT_TRUE(Rests(kLogReady));
    EXPECT_EQ(kLogPaused, session.connectionState);
}

TEST_F(LogStopsTest, JumpCountsWhileAPauseIsNotAtRest) {
    PlayHeld();
    session.PauseCommand();
    ASSERT_EQ(kLogStopRequested, session.log.State());
    session.MoveLogSlider(3);
    EXPECT_EQ(3U, session.log.sampleIndex);
    Release();
    ASSERT_TRUE(Rests(kLogReady));
    EXPECT_EQ(3U, session.log.sampleIndex);
}

// Nothing that is still being delivered moves the slider of a log that is closed.
TEST_F(LogStopsTest, StopWaitsForWhatAPauseLeftBehind) {
    PlayHeld();
    session.PauseCommand();
    session.StopCommand();
    EXPECT_FALSE(session.WaitForThreads(std::chrono::milliseconds(20)));
    Release();
    ASSERT_TRUE(Rests(kLogClosed));
    const Calls noted = recorder.Noted();
    const auto last =
        std::find_if(noted.rbegin(), noted.rend(), [](const auto& call) { return call.starts_with("slider"); });
    EXPECT_EQ("slider 0", *last);
}

TEST_F(LogStopsTest, RecordDuringAPlaybackStopsItFirst) {
    Connect();
    PlayHeld();
    session.RecordCommand();
    EXPECT_NE(kLogRecording, session.log.State());
    Release();
    ASSERT_TRUE(Comes(kLogRecording));
    ASSERT_TRUE(Grows());
    EndScan();
    ASSERT_EQ(kLogSuccess, session.log.StopRecording());
    for (const Read& read : (static_cast<void>(session.log.Close()), ReadLog(folder.Name("temp.xdl"))))
        EXPECT_NE(0xEE, read.data[1]);  // no reply of the log that played
}

TEST_F(LogStopsTest, WhatWasRememberedGoesWithAStopOrWithTheWindow) {
    PlayToTheEnd();
    session.PlayCommand();
    session.RecordCommand();
    session.StopCommand();
    ASSERT_TRUE(Rests(kLogClosed));
    PlayToTheEnd();
    session.PlayCommand();
    session.StartStopThread(kStopScan | kStopLog | kStopWindow);
    session.RecordCommand();
    ASSERT_TRUE(Rests(kLogClosed));
}

TEST_F(LogStopsTest, WhatIsPressedWhileARecordingIsSavedComesAfterIt) {
    RecordScan(2);
    recorder.answer = folder.Name("saved.xdl");
    recorder.whileAsked = [this, waits = recorder.whileAsked] {
        session.RecordCommand();
        waits();
    };
    session.StopCommand();
    EXPECT_EQ(kLogRecording, session.log.State());
    EXPECT_EQ(3U, ReadLog(folder.Name("saved.xdl")).size());
}

TEST_F(LogStopsTest, NothingButStopCountsDuringARecording) {
    RecordScan(2);
    Choose(LongLog());
    recorder.Take();
    text.Clear();
    for (int repeat = 0; repeat < 3; ++repeat)
        session.PlayPauseCommand();
    for (int repeat = 0; repeat < 3; ++repeat)
        session.JumpForward();
    session.MoveLogSlider(1);
    session.LoadLogCommand();
    session.RecordCommand();
    session.PlayCommand();
    EXPECT_EQ(kLogRecording, session.log.State());
    EXPECT_EQ(3U, session.log.header.sampleCount);
    EXPECT_EQ(folder.Name("long.xdl"), session.settings.lastxdlpath);
    const std::string behind = " does nothing while a recording runs: stop it first";
    EXPECT_EQ(
        "Play" + behind + "\r\nJump" + behind + "\r\nLoad log" + behind + "\r\nRecord" + behind + "\r\nPlay" + behind,
        text.Text());
    EXPECT_EQ(5U, recorder.Count("flash Stop the recording first 0x000000 0x0000FF 2000"));
}

TEST_F(LogStopsTest, EndOfAPlaybackBesideAScanGivesTheLineBack) {
    Connect();
    Choose(PutLog("short.xdl", {0, 0}));
    session.PlayCommand();
    ASSERT_TRUE(Eventually([&] {
        HandlePosts();
        return session.log.State() == kLogClosed && session.connectionState == kConnected;
    }));
    session.RecordCommand();
    EXPECT_TRUE(Grows());
    EndScan();
}

TEST_F(LogStopsTest, RecordOnAPausedLogBesideAScanRecords) {
    Connect();
    PlayWaiting();
    session.PauseCommand();
    ASSERT_TRUE(Eventually([&] { return session.log.State() == kLogReady; }));
    ASSERT_TRUE(recorder.WaitFor("reply 0 2", 3));
    EXPECT_EQ(kLogPaused, session.connectionState);  // replies do not end a pause
    session.RecordCommand();
    EXPECT_TRUE(Grows());
    EndScan();
}

// A pause keeps its place whatever the line does, and the line's state comes back with the end of the log.
TEST_F(LogStopsTest, ScanThatComesAndGoesLeavesAPauseAlone) {
    PlayWaiting();
    session.PauseCommand();
    ASSERT_TRUE(Rests(kLogReady));
    AnswerAll();
    EndAfter(3);
    Scan();
    EXPECT_EQ(kLogPaused, session.connectionState);
    recorder.onReplyEnded = nullptr;
    session.StopCommand();
    ASSERT_TRUE(Rests(kLogClosed));
    EXPECT_EQ(kNotConnected, session.connectionState);
}

TEST_F(LogStopsTest, JumpWithoutALogSaysSo) {
    session.JumpForward();
    session.JumpForward();
    EXPECT_EQ("No log is open to jump in", text.Text());
}

TEST_F(LogStopsTest, UnsavedRecordingIsToldOfOnly) {
    session.TellUnsavedRecording();
    EXPECT_EQ("", text.Text());
    PutLog("temp.xdl", {0, 1});
    session.TellUnsavedRecording();
    EXPECT_EQ("A recording of 2026-07-01 12:34:56 was not saved. It is in " + folder.Name("temp.xdl"), text.Text());
    EXPECT_TRUE(folder.Has("temp.xdl"));
    EXPECT_EQ(1U, folder.FileCount());
}

}  // namespace
}  // namespace corvex::test
