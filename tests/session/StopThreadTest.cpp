#include <algorithm>
#include <chrono>

#include "tests/session/SessionTestHelper.h"
#include "tests/support/Eventually.h"

namespace corvex::test {
namespace {

class StopThreadTest : public ScanTest {
protected:
    // Runs a stop thread to its end and tells what it posted.
    Calls Stop(std::uint32_t flags) {
        session.StartStopThread(flags);
        EXPECT_TRUE(WaitForThreads());
        return recorder.Take();
    }
    // Where the call stands among those noted.
    std::ptrdiff_t LastIndexOf(const std::string& call) {
        const Calls noted = recorder.Noted();
        const auto found = std::find(noted.rbegin(), noted.rend(), call);
        return noted.rend() - found - 1;
    }
};

TEST_F(StopThreadTest, EachFlagPostsItsMessageInOrder) {
    EXPECT_EQ((Calls{"post 32770"}), Stop(kStopLog));
    EXPECT_EQ((Calls{"post 32768"}), Stop(kStopWindow));
    EXPECT_EQ((Calls{"post 32769", "post 32770", "post 32768"}), Stop(7));
    EXPECT_EQ((Calls{}), Stop(0));
    EXPECT_EQ((Calls{"post 32769"}), Stop(kStopScan));
    EXPECT_TRUE(session.threadDone.TryWait());
}

TEST_F(StopThreadTest, MessageComesAfterTheDisconnect) {
    AnswerAll();
    session.ToggleScan();
    ASSERT_TRUE(recorder.WaitFor("reply 0 2", 3));
    session.StartStopThread(7);
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ("write 208", serial.Calls("write").back());
    EXPECT_LT(LastIndexOf("reply 0 2"), LastIndexOf("post 32769"));
    EXPECT_EQ(1U, recorder.Count("post 32768"));
    EXPECT_EQ(kNotConnected, session.connectionState);
}

// What a pause has asked to end may still be delivering.
TEST_F(StopThreadTest, EveryPlaybackIsWaitedFor) {
    for (const std::uint32_t state : {kLogPlaying, kLogStopRequested}) {
        session.log.state = state;
        session.log.threadId = 42;
        session.StartStopThread(kStopLog);
        EXPECT_TRUE(Eventually([this] { return session.log.State() == kLogStopRequested; }));
        EXPECT_FALSE(session.WaitForThreads(std::chrono::milliseconds(20)));
        EXPECT_EQ((Calls{}), recorder.Take());
        session.log.threadId = 0;
        ASSERT_TRUE(WaitForThreads());
        EXPECT_EQ((Calls{"post 32770"}), recorder.Take());
    }
}

// A recording that cannot be ended is told of all the same.
TEST_F(StopThreadTest, OtherLogStatesAreLeftAlone) {
    for (const std::uint32_t state : {kLogClosed, kLogReady, kLogOpenedForWrite, kLogRecording}) {
        session.log.state = state;
        EXPECT_EQ((Calls{"post 32770"}), Stop(kStopLog));
        EXPECT_EQ(state, session.log.State());
    }
}

TEST_F(StopThreadTest, StopCommandEndsPlaybackAndPauseOnly) {
    session.StopCommand();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ((Calls{"buttons", "status"}), recorder.Take());
    session.connectionState = kLogPaused;
    session.StopCommand();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ(1U, recorder.Count("post 32770"));
}

}  // namespace
}  // namespace corvex::test
