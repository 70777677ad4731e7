#include <algorithm>
#include <chrono>
#include <memory>
#include <thread>
#include <utility>

#include "session/StatusText.h"
#include "tests/session/LogSessionHelper.h"

namespace corvex::test {
namespace {

class PlayCommandTest : public LogSessionTest {
protected:
    void PauseAndRest() {
        session.PauseCommand();
        ASSERT_TRUE(Rests(kLogReady));
    }
    const char* LeftPanel() const { return LeftPanelText(session.log.State(), session.connectionState).text; }
};

TEST_F(PlayCommandTest, PlaysTheLastLog) {
    const std::string name = PutLog("one.xdl", {0, kFarAway});
    Choose(name);
    recorder.onNoted = [this](const std::string& call) {
        if (call == "clear monitors") {
            EXPECT_EQ(kLogReady, session.log.State());
        }
    };
    session.PlayCommand();
    EXPECT_EQ(kLogPlaying, session.log.State());
    EXPECT_NE(std::string::npos, text.Text().find("Playing " + name));
    ASSERT_TRUE(recorder.WaitFor("slider 1"));
    const Calls noted = recorder.Take();
    ASSERT_LE(2U, noted.size());
    EXPECT_EQ("clear monitors", noted[0]);
    EXPECT_EQ("range 2", noted[1]);
    EXPECT_EQ(1, std::count(noted.begin(), noted.end(), "buttons"));
    EXPECT_EQ(1, std::count(noted.begin(), noted.end(), "monitor 0.000 2 " + IdText(*monitor)));
}

// The first sample of a run is not lost to the clearing of the charts, however soon it follows the run before.
TEST_F(PlayCommandTest, EachOfTwoHundredQuickRunsKeepsItsFirstSample) {
    Choose(PutLog("one.xdl", {0, 0}));
    const std::string first = "monitor 0.000 2 " + IdText(*monitor);
    for (int run = 0; run < 200; ++run) {
        recorder.Take();
        ForgetPosts();
        session.PlayCommand();
        ASSERT_TRUE(recorder.WaitFor(kStoppedPlayback));
        const Calls noted = recorder.Take();
        const auto cleared = std::find(noted.begin(), noted.end(), "clear monitors");
        EXPECT_NE(noted.end(), std::find(cleared, noted.end(), first)) << run;
        EXPECT_EQ(noted.end(), std::find(cleared + 1, noted.end(), "clear monitors")) << run;
        session.OnLogStopped();
    }
}

TEST_F(PlayCommandTest, SaysOnceThatTheDefinitionIsAnother) {
    const auto tells = [this](const std::string& line) {
        session.PlayCommand();
        EXPECT_TRUE(Eventually([&] {
            HandlePosts();
            return session.log.State() == kLogClosed && IsQuiet();
        }));
        const std::size_t first = text.Text().find(line);
        EXPECT_NE(first, std::string::npos) << line << text.Text();
        EXPECT_EQ(text.Text().find(line, first + 1), std::string::npos) << line;
        text.Clear();
    };
    const auto putOther = [this](const std::vector<std::uint32_t>& ids) {
        LogBytes log;
        log.Header(LogBytes::DataOffsetFor(std::vector<std::uint32_t>(ids.size(), 15)), 2);
        log.ItemCount(static_cast<std::uint32_t>(ids.size()));
        for (const std::uint32_t id : ids)
            log.Item(id, kTypeSendCommand, 2, 2, Bytes(15, 0xFF));
        log.Record(0, 0, {1, 2}).Record(0, 0, {1, 2}).MarkEnd();
        folder.Put("other.xdl", {log.bytes.begin(), log.bytes.end()});
        Choose(folder.Name("other.xdl"));
    };
    Choose(PutLog("one.xdl", {0, 0, 0}));
    session.PlayCommand();
    ASSERT_TRUE(Rests(kLogClosed));
    EXPECT_EQ(text.Text().find("not in the definition"), std::string::npos);
    putOther({monitor->GetIdHash(), 0x77});
    tells("1 of 2 commands of this log are not in the definition, and their records are not shown");
    putOther({0x77});
    tells("Nothing of this log is shown, as its commands are not in the definition");
    session.definition.Clear();
    tells("No definition is loaded, so nothing of this log is shown");
}

TEST_F(PlayCommandTest, TellsWhatCannotBeOpenedWhichCostsTheSpeed) {
    folder.Put("old.xdl", std::string("\2\0\0\0", 4) + std::string(60, '\0'));
    folder.Put("short.xdl", "123");
    for (const auto& [file, code] : {std::pair{"gone.xdl", "0xC"}, {"old.xdl", "0xD"}, {"short.xdl", "0x1"}}) {
        session.SetSpeed(0.25F);
        recorder.Take();
        Choose(folder.Name(file));
        session.PlayCommand();
        EXPECT_EQ("Could not open " + folder.Name(file) + ", error " + code, NewText());
        EXPECT_EQ(kLogClosed, session.log.State());
        EXPECT_EQ((Calls{}), recorder.Take());
        EXPECT_EQ(1.0F, session.log.speed);
    }
}

TEST_F(PlayCommandTest, KeepsTheChosenSpeedOverTheOpening) {
    session.SetSpeed(0.25F);
    PlayWaiting();
    EXPECT_EQ(0.25F, session.log.speed);
    EXPECT_EQ(0U, recorder.Count("title"));
}

TEST_F(PlayCommandTest, EndOfTheLogClosesItAndItCanBePlayedAgain) {
    Choose(PutLog("one.xdl", {0, 0, 0}));
    session.PlayCommand();
    ASSERT_TRUE(recorder.WaitFor(kStoppedPlayback));
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ(3U, recorder.Count("reply 0 2"));
    recorder.Take();
    text.Clear();
    session.OnLogStopped();
    EXPECT_EQ(kLogClosed, session.log.State());
    EXPECT_EQ(kNotConnected, session.connectionState);
    EXPECT_STREQ("ALDL: Not Connected", LeftPanel());
    EXPECT_EQ("Playback stopped", text.Text());
    EXPECT_EQ((Calls{"status", "buttons", "slider 0", "status", "buttons"}), recorder.Take());
    ForgetPosts();
    session.PlayCommand();
    ASSERT_TRUE(recorder.WaitFor(kStoppedPlayback));
    ASSERT_TRUE(Rests(kLogClosed));
    EXPECT_EQ(3U, recorder.Count("reply 0 2"));
}

TEST_F(PlayCommandTest, PauseOfNothingRefreshesTheButtons) {
    session.PauseCommand();
    EXPECT_EQ(kNotConnected, session.connectionState);
    EXPECT_EQ("", text.Text());
    EXPECT_EQ((Calls{"buttons"}), recorder.Take());
}

// The one that was waited for is lost to the views; those after it are paced from its time.
TEST_F(PlayCommandTest, PauseHoldsTheLogAndPlayGoesOnBehindTheRecordThatItDropped) {
    PlayWaiting();
    PauseAndRest();
    EXPECT_EQ(kLogPaused, session.connectionState);
    EXPECT_STREQ("Log Paused", LeftPanel());
    EXPECT_EQ("Playback paused", NewText());
    recorder.Take();
    session.PlayCommand();
    EXPECT_NE(std::string::npos, NewText().find("Playback unpaused"));  // maybe behind the first reply
    ASSERT_TRUE(recorder.WaitFor("reply 0 2", 2));
    EXPECT_EQ(3, session.CopyLastPacket().bytes[0]);
    EXPECT_EQ(0U, recorder.Count("clear monitors"));
    EXPECT_TRUE(Rests(kLogClosed));
    EXPECT_EQ(2U, recorder.Count("reply 0 2"));
}

TEST_F(PlayCommandTest, OneKeyPlaysAndPauses) {
    Choose(PutLog("one.xdl", {0, kFarAway}));
    session.PlayPauseCommand();
    EXPECT_EQ(kLogPlaying, session.log.State());
    ASSERT_TRUE(PlaysUpTo(2));
    session.PlayPauseCommand();
    ASSERT_TRUE(Rests(kLogReady));
    EXPECT_EQ(kLogPaused, session.connectionState);
    static_cast<void>(session.log.Seek(1, kSeekFromStart));
    session.PlayPauseCommand();
    EXPECT_EQ(kLogPlaying, session.log.State());
    EXPECT_EQ(kLogPaused, session.connectionState);  // for the connection it is paused still
    EXPECT_STREQ("Log Playing", LeftPanel());
}

// Else the header is written back, and a log that may not be written to cannot be opened.
TEST_F(PlayCommandTest, LogThatIsOnlyLookedAtIsNotWrittenTo) {
    using std::filesystem::last_write_time;
    for (const bool looks : {true, false}) {
        const std::string name = PutLog("one.xdl", {0, 0});
        const std::string before = folder.Content("one.xdl");
        const auto then = std::filesystem::file_time_type::clock::now() - std::chrono::hours(48);
        last_write_time(name, then);
        const auto stamp = last_write_time(name);
        Choose(name);
        session.looksAtLogs = looks;
        session.PlayCommand();
        ASSERT_TRUE(Rests(kLogClosed));
        EXPECT_EQ(looks, stamp == last_write_time(name));
        EXPECT_EQ(before, folder.Content("one.xdl"));
    }
    EXPECT_EQ(4U, recorder.Count("reply 0 2"));
}

// A record is just being shown when the session goes.
TEST_F(PlayCommandTest, CallsOutliveThePlaybackOfASessionThatGoes) {
    AutoResetEvent showing(false), shown(false);
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> calls = token;
    SessionCalls given;
    given.setLogSlider = [&showing, &shown, token](std::uint32_t) {
        AutoResetEvent& end = shown;
        showing.Set();
        end.Wait();
    };
    token.reset();
    auto brief = std::make_unique<SessionState>(std::move(given), serial);
    given = {};
    const DataLogEngine& log = brief->log;  // the last to go of what the playback needs
    brief->settings.SetLastLog(PutLog("one.xdl", {0, kFarAway}));
    brief->PlayCommand();
    showing.Wait();
    std::thread closer([&] { brief.reset(); });
    EXPECT_TRUE(Eventually([&] { return log.State() == kLogStopRequested; }));
    EXPECT_FALSE(calls.expired());
    shown.Set();
    closer.join();
    EXPECT_TRUE(calls.expired());
}

}  // namespace
}  // namespace corvex::test
