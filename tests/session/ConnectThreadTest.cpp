#include "tests/session/SessionTestHelper.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

class ConnectThreadTest : public ScanTest {};

TEST_F(ConnectThreadTest, ConnectMonitorAndDisconnectRunInOrder) {
    AnswerAll();
    ADXObject *const none = nullptr, *const refused = Add<ADXValue>(session.definition, "NOCOMMAND");
    const std::string c = "write 192", m = "write 160", d = "write 208";
    const struct {
        const char* name;
        ADXObject *connect, *monitor, *disconnect;
        int replies;
        Calls writes;
    } rows[] = {
        {"all of them", connect, monitor, disconnect, 3, {c, m, m, d}},
        {"without a connect command the monitor begins at once", none, monitor, disconnect, 1, {m, d}},
        {"without a monitor there is nothing to disconnect", connect, none, disconnect, 9, {c}},
        {"an absent disconnect is no failure", connect, monitor, none, 2, {c, m}},
        {"a stop during the connect skips the monitor", connect, monitor, disconnect, 1, {c, d}},
        {"a refused connect skips the rest", refused, monitor, disconnect, 9, {}},
        {"a refused monitor skips the disconnect", connect, refused, disconnect, 9, {c}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        session.definition.connectcmd = row.connect;
        session.definition.monitorcmd = row.monitor;
        session.definition.disconnectcmd = row.disconnect;
        EndAfter(row.replies);
        Scan();
        EXPECT_EQ(row.writes, serial.Calls("write"));
        EXPECT_EQ("close", serial.Calls().back());
        EXPECT_EQ(Listed(kNotConnected, 0, 0), Listed(session.connectionState, session.scanning, session.errorCount));
        serial.ForgetCalls();
    }
}

TEST_F(ConnectThreadTest, StatesAreShownAsTheyAreEntered) {
    AnswerAll();
    EndAfter(2);
    std::vector<std::uint32_t> states;
    recorder.onNoted = [&](const std::string& call) {
        if (call == "buttons") states.push_back(session.connectionState);
    };
    Scan();
    EXPECT_EQ((std::vector<std::uint32_t>{kConnecting, kConnected, kNotConnected}), states);
    const Calls noted = recorder.Noted();
    EXPECT_EQ((Calls{"clear monitors", "status", "buttons"}), Calls(noted.begin(), noted.begin() + 3));
    EXPECT_EQ((Calls{"status", "buttons"}), Calls(noted.end() - 2, noted.end()));
}

TEST_F(ConnectThreadTest, PortIsTheSettingsOneAtTheDefinitionsBaud) {
    std::snprintf(session.settings.comport, sizeof session.settings.comport, "%s", "/dev/a-name-longer-than-COM1");
    session.definition.baud = 160;
    session.definition.connectcmd = session.definition.monitorcmd = nullptr;
    Scan();
    EXPECT_EQ((Calls{"open /dev/a-name-longer-than-COM1"}), serial.Calls("open"));
    EXPECT_EQ(160U, serial.Settings().baud);
}

TEST_F(ConnectThreadTest, PortThatDoesNotOpenIsToldInOneLine) {
    serial.failOpen = true;
    Scan();
    EXPECT_EQ("Unable to open port (COM1)!", text.Text());
    EXPECT_EQ((Calls{"clear monitors", "port refused no such port", "status", "buttons"}), recorder.Noted());
    EXPECT_EQ(kNotConnected, session.connectionState);
    EXPECT_EQ(0U, session.scanning);
    EXPECT_TRUE(session.threadDone.TryWait());
}

TEST_F(ConnectThreadTest, ALineAtAnotherRateIsTold) {
    session.definition.baud = 8192;
    session.definition.connectcmd = session.definition.monitorcmd = nullptr;
    // 8437 is 245 too fast, and 3 % are 245.76; a system that can't tell says 0.
    for (const std::uint32_t baud : {8192U, 8437U, 0U, 8438U, 9600U, 7000U}) {
        serial.lineBaud = baud;
        Scan();
        const bool isTold = baud == 8438 || baud == 9600 || baud == 7000;
        EXPECT_EQ(isTold ? "COM1 runs at " + std::to_string(baud) + " baud instead of 8192!" : "", text.Text());
    }
    EXPECT_EQ(6U, Opened());
}

TEST_F(ConnectThreadTest, SilentLineStaysConnectingWithoutErrors) {
    EndAfter(4);
    std::vector<std::uint32_t> states;
    recorder.onNoted = [&](const std::string& call) {
        if (call == "status") states.push_back(session.connectionState);
    };
    Scan();
    // A line failure is no refusal.
    EXPECT_EQ((Calls{"write 192", "write 160", "write 160", "write 160", "write 208"}), serial.Calls("write"));
    EXPECT_EQ((std::vector<std::uint32_t>{1, 1, 1, 1, 1, 1, 2}), states);  // entered, four polls, disconnect, left
    EXPECT_EQ(0U, session.errorCount);
    EXPECT_EQ(5U, recorder.Count("reply 6 0"));
}

TEST_F(ConnectThreadTest, EchoBitOutlivesTheDefinitionThatSetIt) {
    session.definition.connectcmd = session.definition.monitorcmd = nullptr;
    Scan();
    EXPECT_EQ(0U, session.engine.flags);
    session.definition.flags = 3;
    Scan();
    EXPECT_EQ(1U, session.engine.flags);
    session.definition.flags = 0;
    Scan();
    EXPECT_EQ(1U, session.engine.flags);
}

// Waiters are woken and the state is shown while a new scan still can't begin.
TEST_F(ConnectThreadTest, ScanningIsClearedLast) {
    session.definition.monitorcmd = Add<ADXValue>(session.definition, "NOCOMMAND");  // ends with the scan still wanted
    bool seen = false;
    recorder.onNoted = [&](const std::string& call) {
        if (call != "status" || session.connectionState != kNotConnected) return;
        seen = true;
        EXPECT_FALSE(serial.IsOpen());
        EXPECT_TRUE(session.threadDone.TryWait());
        session.threadDone.Set();
        EXPECT_EQ(1U, session.scanning);
        session.ToggleScan();  // a stop thread, no scan
    };
    Scan();
    EXPECT_TRUE(seen);
    EXPECT_EQ(1U, Opened());
    EXPECT_EQ(1U, recorder.Count("post 32769"));
}

}  // namespace
}  // namespace corvex::test
