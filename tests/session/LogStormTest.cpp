// Commands in any order, as fast as they come: nothing hangs, all comes to rest, and what was pressed last holds.
#include <functional>
#include <iterator>
#include <random>

#include "session/UnsavedRecording.h"
#include "tests/session/LogSessionHelper.h"
#include "tests/support/AttackRounds.h"

namespace corvex::test {
namespace {

// Counts the playbacks that are said to begin or to go on; a long scan clears a text that is kept.
class PlayLines final : public ITextAppender {
public:
    std::size_t TextLength() override { return 0; }
    void Append(const char* text) override {
        const std::string line = text;
        if (line.find("Playing ") != std::string::npos || line.find("unpaused") != std::string::npos) ++count;
    }
    void Clear() override {}
    std::atomic<int> count{0};
};

class LogStormTest : public LogSessionTest {
protected:
    LogStormTest() {
        session.debug.edit = &lines_;
        clock.SetStep(500);  // half a millisecond for each look at it
        std::vector<std::uint32_t> times;
        for (std::uint32_t i = 0; i < 60; ++i)
            times.push_back(i * 2);
        log_ = PutLog("storm.xdl", times);
        recorder.answer = log_;
        Choose(log_);
    }

    ~LogStormTest() override { session.debug.edit = nullptr; }

    void Command(std::uint32_t number) {
        const std::function<void()> commands[] = {
            [this] { session.PlayCommand(); },
            [this] { session.PauseCommand(); },
            [this] { session.PlayPauseCommand(); },
            [this] { Stop(); },
            [this] { session.JumpForward(); },
            [this] { session.JumpBackward(); },
            [this] { session.MoveLogSlider(Random(70)); },
            [this] { session.SetSpeed(static_cast<float>(Random(9)) * 0.5F); },
            [this] { Load(); },
            [this] { session.RecordCommand(); },
        };
        if (number < std::size(commands)) return commands[number]();
        HandlePosts();
    }
    void Storm() {
        for (int i = 0; i < 25; ++i) {
            Command(Random(12));
            if (i % 5 == 0) PlaysOn();
        }
    }
    void Stop() {
        recorder.answer = folder.Name("saved" + std::to_string(++saved_) + ".xdl");
        session.StopCommand();
    }
    void Load() {
        recorder.answer = log_;
        session.LoadLogCommand();
    }
    // Lets the playback thread get somewhere.
    void PlaysOn() {
        const std::uint32_t before = session.log.sampleIndex;
        static_cast<void>(Eventually([&] { return session.log.sampleIndex != before || !session.log.IsPlaying(); }));
    }
    void PressedLastHolds();
    void EndClosed() {
        Stop();
        ASSERT_TRUE(Eventually([&] {
            HandlePosts();
            return session.log.State() == kLogClosed && !session.log.IsPlaying() && !session.IsStoppingLog();
        }));
        ASSERT_NE(kLogPaused, session.connectionState);
        ForgetPosts();
        recorder.Take();
        Choose(log_);
    }
    // Replies with a number of their own, so that a log tells by itself whether one is missing.
    void NumberReplies() {
        session.definition.connectcmd = session.definition.disconnectcmd = nullptr;
        serial.onWrite = [this, number = 0U]() mutable {
            ++number;
            serial.Feed({static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(number >> 8U & 0x7FU)}, 10);
        };
    }
    void NoneIsMissing(const std::string& path) const {
        if (FindUnsavedRecording(path) == std::nullopt) return;  // stopped before a reply came
        std::uint32_t before = 0;
        for (const Read& read : ReadLog(path)) {
            const std::uint32_t number = read.data[0] + 256U * read.data[1];
            if (before != 0) {
                ASSERT_EQ((before + 1) % 0x8000, number) << path;
            }
            before = number;
        }
    }

    std::uint32_t Random(std::uint32_t below) { return static_cast<std::uint32_t>(random_()) % below; }

    std::string log_;
    int saved_ = 0;

private:
    PlayLines lines_;
    std::mt19937 random_{2024};
};

// Whatever went before. A recording refuses the playback.
void LogStormTest::PressedLastHolds() {
    const int before = lines_.count;
    if (Random(2) == 0) {
        session.SetSpeed(1.0F);
        session.PlayCommand();
        ASSERT_TRUE(Eventually([&] {
            HandlePosts();
            return session.log.State() == kLogRecording || lines_.count > before;
        }));
    } else {
        session.RecordCommand();
        ASSERT_TRUE(Eventually([&] {
            HandlePosts();
            return session.log.State() == kLogRecording;
        }));
    }
}

TEST_F(LogStormTest, EachStormEndsAsItsLastCommandSays) {
    for (unsigned i = 0; i < AttackRounds(100); ++i) {
        session.PlayCommand();
        Storm();
        ASSERT_NO_FATAL_FAILURE(PressedLastHolds());
        ASSERT_NO_FATAL_FAILURE(EndClosed());
    }
    EXPECT_EQ(60U, ReadLog(log_).size());
}

TEST_F(LogStormTest, NoReplyIsMissingFromAnyRecording) {
    NumberReplies();
    session.ToggleScan();
    ASSERT_TRUE(recorder.WaitFor("reply 0 2"));
    for (unsigned i = 0; i < AttackRounds(50); ++i) {
        Storm();
        ASSERT_NO_FATAL_FAILURE(PressedLastHolds());
        ASSERT_NO_FATAL_FAILURE(EndClosed());
    }
    session.ToggleScan();
    ASSERT_TRUE(Rests(kLogClosed));
    int logs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        const std::string name = entry.path().filename().string();
        if (name == "storm.xdl") continue;
        ASSERT_NO_FATAL_FAILURE(NoneIsMissing(entry.path().string()));
        ++logs;
    }
    EXPECT_LT(10, logs);
    EXPECT_EQ(60U, ReadLog(log_).size());
}

TEST_F(LogStormTest, SessionsThatGoInTheMiddleOfAStorm) {
    for (int i = 0; i < 100; ++i) {
        auto brief = std::make_unique<SessionState>(recorder.Calls(), serial);
        brief->settings.SetLastLog(log_);
        brief->PlayCommand();
        if (i % 2 == 0) brief->MoveLogSlider(55);
        if (i % 3 == 0) brief->StopCommand();
        if (i % 5 == 0) brief->PauseCommand();
        if (i % 7 == 0) brief->SetSpeed(0.0F);
        brief.reset();
    }
    EXPECT_EQ(60U, ReadLog(log_).size());
}

}  // namespace
}  // namespace corvex::test
