#include "session/ScanStop.h"
#include "tests/session/SessionTestHelper.h"
#include "tests/support/Eventually.h"

namespace corvex::test {
namespace {

// A scan on a line that never answers, whose commands wait far longer than anybody would.
class ScanStopTest : public ScanTest {
protected:
    ScanStopTest() {
        // In virtual time any deadline passes at once: what is to be stopped waits without limit.
        for (ADXCSendCommand* command : {connect, monitor, disconnect})
            command->replytimeout = 0;
    }
    bool WaitForWrite(const char* call) {
        return Eventually([&] { return !serial.Calls(call).empty(); });
    }
    void Stop(std::uint32_t flags = kStopScan) { session.StartStopThread(flags); }
    double Now() const { return clock.PeekMilliseconds(); }
    // Virtual time stands still in the disconnect command's first wait until the gate is opened.
    void HoldDisconnect() {
        serial.onRead = [this](std::uint32_t) {
            if (serial.Calls("write").back() != "write 208") return;
            reading.Set();
            gate.Wait();
            gate.Set();
        };
    }

    AutoResetEvent reading{false}, gate{false};
};

TEST_F(ScanStopTest, EndsACommandThatWaitsForEverAndRunsTheDisconnectCommandWhole) {
    serial.Answer({0xD0}, {5, 6}, 4000);
    session.ToggleScan();
    ASSERT_TRUE(WaitForWrite("write 192"));
    Stop();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ((Calls{"write 192", "write 208"}), serial.Calls("write"));
    EXPECT_EQ(1U, recorder.Count("reply 0 2"));
}

TEST_F(ScanStopTest, TimeCutsTheDisconnectCommand) {
    std::atomic<double> began = 0;  // of the last command that was sent
    serial.onWrite = [&] { began = Now(); };
    session.ToggleScan();
    ASSERT_TRUE(WaitForWrite("write 192"));
    Stop();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_GE(Now() - began, 5000.0);
    EXPECT_LE(Now() - began, 5050.0);
    EXPECT_EQ(2U, recorder.Count("reply 2 -"));  // the monitor or the connect command, and the disconnect command
}

TEST_F(ScanStopTest, ASecondStopCutsTheDisconnectCommand) {
    HoldDisconnect();
    session.ToggleScan();
    Stop();
    reading.Wait();
    const double began = Now();
    Stop();
    EXPECT_TRUE(Eventually([&] { return session.engine.stopRequested == DataAcqEngine::kCut; }));
    gate.Set();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_LE(Now() - began, 50.0);
}

// Who stops and then closes the window wants both.
TEST_F(ScanStopTest, ClosingAfterAStopDoesNotCut) {
    HoldDisconnect();
    serial.Answer({0xD0}, {5, 6}, 4000);
    session.ToggleScan();
    Stop();
    reading.Wait();
    Stop(kStopScan | kStopLog | kStopWindow);
    gate.Set();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ(1U, recorder.Count("reply 0 2"));
}

// A double click is no insistence: the second stop comes before the disconnect command.
TEST_F(ScanStopTest, TwoStopsDuringTheMonitorDoNotCut) {
    serial.Answer({0xD0}, {5, 6}, 4000);
    AutoResetEvent monitoring(false);
    serial.onRead = [&](std::uint32_t number) {
        if (number != 1) return;
        monitoring.Set();
        gate.Wait();
    };
    session.ToggleScan();
    monitoring.Wait();
    Stop();
    Stop();
    EXPECT_TRUE(Eventually([&] { return session.engine.stopRequested != 0; }));
    gate.Set();
    ASSERT_TRUE(WaitForThreads());
    EXPECT_EQ(1U, recorder.Count("reply 0 2"));
}

}  // namespace
}  // namespace corvex::test
