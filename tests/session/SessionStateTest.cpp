#include <algorithm>
#include <chrono>
#include <memory>
#include <thread>

#include "session/SessionState.h"
#include "tests/session/SessionTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

using std::chrono::steady_clock;

class SessionStateTest : public ScanTest {
protected:
    // Polls until the word has the value.
    static bool Becomes(const std::atomic<std::uint32_t>& word, std::uint32_t value) {
        const auto deadline = steady_clock::now() + std::chrono::seconds(60);
        while (word != value && steady_clock::now() < deadline)
            std::this_thread::yield();
        return word == value;
    }
};

TEST_F(SessionStateTest, BeginsIdle) {
    EXPECT_EQ(Listed(kNotConnected, 0, 0, kLogClosed, 0),
              Listed(session.connectionState, session.scanning, session.errorCount, session.log.State(),
                     session.CopyLastPacket().size));
    EXPECT_EQ("COM1 1", Listed(session.settings.comport, session.settings.loadlastdef));
    EXPECT_TRUE(session.threadDone.TryWait());
    EXPECT_EQ(nullptr, session.mainWindow);
    EXPECT_EQ(nullptr, session.engine.port.sink);
}

TEST_F(SessionStateTest, ScanStartsFromACleanSlate) {
    text.Append("old");
    session.errorCount = 7;
    session.timer.tickCount = 5;
    clock.AdvanceMilliseconds(3000);
    const double rateAt = session.timer.rateAt;
    serial.failOpen = true;
    session.debug.edit = &text;
    Scan();
    EXPECT_EQ("Unable to open port (COM1)!", text.Text());
    EXPECT_EQ(0U, session.errorCount);
    EXPECT_EQ(3.0, session.timer.startedAt);
    EXPECT_EQ(5U, session.timer.tickCount);
    EXPECT_EQ(rateAt, session.timer.rateAt);
    EXPECT_EQ("clear monitors", recorder.Noted().front());
    EXPECT_EQ(1, recorder.scans);
}

// A stop clears `scanning` long before the connect thread has ended: a toggle then must not start a second one.
TEST_F(SessionStateTest, TogglesWhileStoppingStartFurtherStops) {
    AnswerAll();
    AutoResetEvent reading(false), released(false);
    serial.onRead = [&](std::uint32_t number) {
        if (number != 2) return;
        reading.Set();
        released.Wait();
    };
    session.ToggleScan();
    reading.Wait();
    session.ToggleScan();
    session.ToggleScan();
    EXPECT_TRUE(Becomes(session.scanning, 0));
    session.ToggleScan();
    EXPECT_EQ(0U, session.scanning);
    EXPECT_EQ(0U, recorder.Count("post 32769"));
    released.Set();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ(1U, Opened());
    EXPECT_EQ(3U, recorder.Count("post 32769"));
    EXPECT_TRUE(session.threadDone.TryWait());
}

TEST_F(SessionStateTest, FuriousTogglingEndsIdle) {
    AnswerAll();
    for (int i = 0; i < 500; ++i)
        session.ToggleScan();
    session.StartStopThread(kStopScan);
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ(0U, session.scanning);
    EXPECT_EQ(Opened(), serial.Calls("close").size());
    EXPECT_EQ(Opened(), serial.Calls("write 208").size());
}

TEST_F(SessionStateTest, DestructionEndsTheScanFirst) {
    AnswerAll();
    for (int i = 0; i < 20; ++i) {
        auto brief = std::make_unique<SessionState>(recorder.Calls(), serial);
        brief->definition.monitorcmd = AddSend(brief->definition, "MONITOR", {0xA0}, 2);
        brief->definition.disconnectcmd = AddSend(brief->definition, "DISCONNECT", {0xD0}, 2);
        brief->ToggleScan();
        if (i % 2 == 0) {
            ASSERT_TRUE(recorder.WaitFor("reply 0 2"));
        }
        brief.reset();
        EXPECT_FALSE(serial.IsOpen());
        EXPECT_EQ("write 208", serial.Calls("write").back());
        recorder.Take();
    }
}

// A page that reads while packets come sees one packet or the other, never half of each.
TEST_F(SessionStateTest, LastPacketIsNeverHalfOfTwo) {
    connect->replysize = connect->packetsize = 0;
    auto* ones = AddSend(session.definition, "ONES", {0xA1}, 300);
    auto* twos = AddSend(session.definition, "TWOS", {0xA2}, 200);
    serial.Answer({0xA1}, Bytes(300, 1));
    serial.Answer({0xA2}, Bytes(200, 2));
    session.definition.monitorcmd = AddMacro(session.definition, "MACRO", {ones, twos});
    session.debug.edit = nullptr;
    session.ToggleScan();
    bool sawOnes = false, sawTwos = false;
    const auto deadline = steady_clock::now() + std::chrono::seconds(60);
    for (int i = 0; (i < 2000 || !sawOnes || !sawTwos) && steady_clock::now() < deadline; ++i) {
        const LastPacket last = session.CopyLastPacket();
        if (last.size == 0) continue;
        const std::uint8_t byte = last.bytes[0];
        ASSERT_EQ(byte == 1 ? 300U : 200U, last.size);
        ASSERT_EQ((byte == 1 ? ones : twos)->GetIdHash(), last.command);
        ASSERT_EQ(last.size, std::count(last.bytes.begin(), last.bytes.end(), byte));
        (byte == 1 ? sawOnes : sawTwos) = true;
    }
    EXPECT_TRUE(sawOnes && sawTwos);
    session.ToggleScan();
    ASSERT_TRUE(WaitForThreads());
}

}  // namespace
}  // namespace corvex::test
