// Commands in any order, as fast as they come: nothing hangs, and all comes to rest.
#include <random>

#include "tests/session/LogSessionHelper.h"

namespace corvex::test {
namespace {

class LogStormTest : public LogSessionTest {
protected:
    LogStormTest() {
        clock.SetStep(500);  // half a millisecond for each look at it
        std::vector<std::uint32_t> times;
        for (std::uint32_t i = 0; i < 60; ++i)
            times.push_back(i * 2);
        log_ = PutLog("storm.xdl", times);
        recorder.answer = log_;
        Choose(log_);
    }

    void Command(std::uint32_t number) {
        switch (number) {
            case 0:
                return session.PlayCommand();
            case 1:
                return session.PauseCommand();
            case 2:
                return session.PlayPauseCommand();
            case 3:
                return session.StopCommand();
            case 4:
                return session.JumpForward();
            case 5:
                return session.JumpBackward();
            case 6:
                return session.MoveLogSlider(Random(70));
            case 7:
                return session.SetSpeed(static_cast<float>(Random(9)) * 0.5F);
            case 8:
                return session.LoadLogCommand();
            default:
                return HandlePosts();
        }
    }
    void Storm() {
        for (int i = 0; i < 25; ++i) {
            Command(Random(10));
            if (i % 5 == 0) PlaysOn();
        }
        session.SetSpeed(0.0F);
        session.StopCommand();
    }
    // Lets the playback thread get somewhere.
    void PlaysOn() {
        const std::uint32_t before = session.log.sampleIndex;
        static_cast<void>(Eventually([&] { return session.log.sampleIndex != before || !session.log.IsPlaying(); }));
    }

    std::uint32_t Random(std::uint32_t below) { return static_cast<std::uint32_t>(random_()) % below; }

    std::string log_;

private:
    std::mt19937 random_{2024};
};

TEST_F(LogStormTest, HundredStormsEndClosed) {
    for (int i = 0; i < 100; ++i) {
        session.PlayCommand();
        Storm();
        // A log that was stopped by the pace of the storm may stand paused, or open at an end that it ran to.
        ASSERT_TRUE(Eventually([&] {
            HandlePosts();
            return !session.log.IsPlaying() && session.WaitForThreads(std::chrono::milliseconds(0));
        }));
        session.OnLogStopped();
        ASSERT_EQ(kLogClosed, session.log.State());
        ASSERT_EQ(kNotConnected, session.connectionState);
        ASSERT_FALSE(session.log.IsPlaying());
        recorder.Take();
        ForgetPosts();
    }
    EXPECT_EQ(60U, ReadLog(log_).size());
}

TEST_F(LogStormTest, StormsBesideARunningScan) {
    AnswerAll();
    session.debug.edit = nullptr;
    session.ToggleScan();
    ASSERT_TRUE(recorder.WaitFor("reply 0 2"));
    for (int i = 0; i < 20; ++i)
        Storm();
    session.ToggleScan();
    ASSERT_TRUE(Eventually([&] {
        HandlePosts();
        return !session.log.IsPlaying() && session.WaitForThreads(std::chrono::milliseconds(0));
    }));
    session.OnLogStopped();
    EXPECT_EQ(kLogClosed, session.log.State());
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
