// A scan whose device goes and comes back.
#include <functional>

#include "tests/session/LogSessionHelper.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

const std::string kC = "write 192", kM = "write 160", kD = "write 208", kFailed = "write",
                  kVanished = "device vanished port has vanished";

class ReconnectTest : public LogSessionTest {
protected:
    ReconnectTest() { AnswerAll(); }

    // The device goes at these writes, counted from 1, and can be opened again at so many tries after each.
    void Vanish(const std::set<int>& at, int tries = 1) {
        serial.onWrite = [this, at, tries, writes = 0]() mutable {
            if (!at.contains(++writes)) return;
            serial.Vanish();
            triesLeft_ = tries;
        };
        serial.onOpen = [this] {
            opened.push_back(clock.PeekMilliseconds());
            if (triesLeft_-- == 1) serial.ComeBack();
            if (onTry && opened.size() > 1) onTry();
        };
    }
    std::size_t Lines(const std::string& part) const {
        std::size_t count = 0;
        for (std::size_t at = text.Text().find(part); at != std::string::npos; at = text.Text().find(part, at + 1))
            ++count;
        return count;
    }

    std::vector<double> opened;  // when, in milliseconds
    std::function<void()> onTry;

private:
    int triesLeft_ = 0;
};

TEST_F(ReconnectTest, GoesOnInTheSameScanAndTheSameLog) {
    std::vector<std::uint32_t> states;
    recorder.onNoted = [&](const std::string& call) {
        if (call == "buttons") states.push_back(session.connectionState);
    };
    Vanish({4}, 3);
    session.RecordCommand();
    states.clear();
    EndAfter(7);
    const double began = session.timer.startedAt;
    Scan();
    EXPECT_EQ((Calls{kC, kM, kM, kFailed, kC, kM, kM, kD}), serial.Calls("write"));
    EXPECT_EQ((Calls(4, "open COM1")), serial.Calls("open"));
    EXPECT_EQ((std::vector<double>{0, 1030, 2030, 3030}), opened);
    EXPECT_EQ((std::vector<std::uint32_t>{1, 0, 1, 0, 2}), states);
    EXPECT_EQ(1U, session.errorCount);
    EXPECT_EQ(began, session.timer.startedAt);
    EXPECT_EQ(Listed(1U, 1U, 1U),
              Listed(recorder.Count(kVanished), recorder.Count("device back"), recorder.Count("clear monitors")));
    EXPECT_EQ(0U, recorder.Count("port refused no such port"));
    EXPECT_EQ(Listed(1U, 1U, 7U),
              Listed(Lines("COM1 has vanished, waiting for it"), Lines("COM1 is back"), Lines("Reply Success")));
    EXPECT_EQ(kLogSuccess, session.log.StopRecording());
    EXPECT_NE(0U, session.log.Close());
    const std::vector<Read> log = ReadLog(folder.Name("temp.xdl"));
    EXPECT_EQ(
        (std::vector<Read>{
            {0, {1, 2}}, {10, {3, 4}}, {20, {3, 4}}, {3030, {1, 2}}, {3040, {3, 4}}, {3050, {3, 4}}, {3060, {5, 6}}}),
        log);
}

// Wherever the device goes, and whatever the definition has.
TEST_F(ReconnectTest, BeginsAnewWithTheConnectCommandWhileTheScanIsWanted) {
    ADXObject *const none = nullptr, *const refused = Add<ADXValue>(session.definition, "NOCOMMAND");
    const struct {
        const char* name;
        ADXObject *connect, *monitor;
        std::set<int> vanishes;
        int replies;
        Calls writes;
        bool reconnects = true;
    } rows[] = {
        {"during the connect command", connect, monitor, {1}, 3, {kFailed, kC, kM, kD}},
        {"during the first monitor command", connect, monitor, {2}, 4, {kC, kFailed, kC, kM, kD}},
        {"again and again", connect, monitor, {1, 2, 3, 6}, 7, {kFailed, kFailed, kFailed, kC, kM, kFailed, kC, kD}},
        {"without a connect command", none, monitor, {2}, 3, {kM, kFailed, kM, kD}},
        {"without a monitor command", connect, none, {1}, 9, {kFailed, kC}},
        {"during the disconnect command, which just ends", connect, monitor, {3}, 2, {kC, kM, kFailed}},
        {"a refused monitor command ends the scan all the same", connect, refused, {1}, 9, {kFailed, kC}},
        {"nobody waits for it", connect, monitor, {2}, 3, {kC, kFailed, kFailed, kFailed}, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        session.definition.connectcmd = row.connect;
        session.definition.monitorcmd = row.monitor;
        session.reconnects = row.reconnects;
        Vanish(row.vanishes);
        EndAfter(row.replies);
        Scan();
        EXPECT_EQ(row.writes, serial.Calls("write"));
        EXPECT_EQ(Listed(kNotConnected, 0, false), Listed(session.connectionState, session.scanning, serial.IsOpen()));
        serial.ForgetCalls();
        serial.ComeBack();
    }
}

// Each way to ask, at each moment between the going and the connect command.
TEST_F(ReconnectTest, AStopEndsItAtOnceWhereverItComes) {
    const std::function<void()> stops[] = {
        [this] { session.StartStopThread(kStopScan); },
        [this] { session.StartStopThread(kStopScan | kStopLog | kStopWindow); },
        [this] { session.ToggleScan(); },
        [this] {
            session.StartStopThread(kStopScan);
            session.StartStopThread(kStopScan);
        },
    };
    enum Moment { kGone, kTry, kOpening, kBack, kConnectCommand };
    for (const auto& stop : stops) {
        for (const Moment moment : {kGone, kTry, kOpening, kBack, kConnectCommand}) {
            SCOPED_TRACE(moment);
            double asked = 0;
            std::size_t tries = 0;
            const auto ask = [&] {
                stop();
                EXPECT_TRUE(Eventually([&] { return session.engine.stopRequested != 0; }));
                asked = clock.PeekMilliseconds();
                tries = opened.size();
            };
            opened.clear();
            Vanish({2}, moment == kTry ? 1000 : 3);
            onTry = [&] {
                if ((moment == kTry && opened.size() == 3) || (moment == kOpening && opened.size() == 4)) ask();
            };
            const std::string word = moment == kGone ? kVanished : moment == kBack ? "device back" : "-";
            recorder.onNoted = [&](const std::string& call) {
                if (call == word) ask();
            };
            if (moment == kConnectCommand)
                serial.onWrite = [&, write = serial.onWrite, writes = 0]() mutable {
                    write();
                    if (++writes == 3) ask();
                };
            serial.ForgetCalls();
            Scan();
            const bool isBack = moment >= kOpening;
            EXPECT_EQ(isBack ? (Calls{kC, kFailed, kC, kD}) : (Calls{kC, kFailed}), serial.Calls("write"));
            EXPECT_EQ(tries, opened.size());
            EXPECT_LE(clock.PeekMilliseconds() - asked, 60.0);  // with the disconnect command's reply
            serial.ComeBack();
        }
    }
}

TEST_F(ReconnectTest, APortThatFailsAsSoonAsItOpensIsTriedOnceASecond) {
    std::set<int> all;
    for (int write = 1; write < 100; ++write)
        all.insert(write);
    Vanish(all);
    EndAfter(20);
    Scan();
    ASSERT_EQ(20U, opened.size());
    for (std::size_t i = 1; i < opened.size(); ++i)
        EXPECT_GE(opened[i] - opened[i - 1], 1000.0);
}

TEST_F(ReconnectTest, APortThatDoesNotOpenWhenAScanStartsIsNotTriedAgain) {
    serial.Vanish();
    Scan();
    EXPECT_EQ(1U, Opened());
    EXPECT_EQ(0U, recorder.Count(kVanished));
}

TEST_F(ReconnectTest, AnOddRateIsToldAgainWhenItIsAnotherOne) {
    session.definition.baud = 8192;
    serial.lineBaud = 9600;
    Vanish({2, 4, 6});
    onTry = [&] { serial.lineBaud = opened.size() == 3 ? 4800 : *serial.lineBaud; };
    EndAfter(7);
    Scan();
    EXPECT_EQ(4U, opened.size());
    EXPECT_EQ(Listed(1U, 1U), Listed(Lines("runs at 9600 baud"), Lines("runs at 4800 baud")));
}

// Neither a log that plays meanwhile nor a bad reply connects a line, and a paused log goes on hiding what it does.
TEST_F(ReconnectTest, OnlyAGoodReplyOfTheLineConnectsItAgain) {
    auto* listen = Add<ADXC160BaudListen>(session.definition, "LISTEN");
    listen->packetsize = 1;
    const Bytes sync(9, 0), bad(9, 0), good(9, 1);
    for (const bool paused : {false, true}) {
        session.definition.connectcmd = nullptr;
        session.definition.monitorcmd = listen;
        session.definition.disconnectcmd = nullptr;
        Vanish({});
        serial.onRead = [&, left = 25](std::uint32_t) mutable {
            if (--left == 0) serial.Vanish();
        };
        onTry = [&] {
            serial.ComeBack();
            for (const Bytes& bytes : {sync, bad, sync, good})
                serial.Feed(bytes);
        };
        serial.Feed(sync);
        serial.Feed(good);
        recorder.onNoted = [&](const std::string& call) {
            if (call != kVanished) return;
            session.Connect();
            EXPECT_EQ(kConnecting, session.connectionState);
            if (paused) session.connectionState = kLogPaused;
        };
        Calls ends;
        recorder.onReplyEnded = [&](const DataAcqStatus& status, PacketView) {
            ends.push_back(std::to_string(status.code) + " " + std::to_string(session.connectionState));
            if (ends.size() == 4) session.scanning = 0;
        };
        Scan();
        EXPECT_EQ(paused ? (Calls{"0 0", "8 0", "7 3", "0 3"}) : (Calls{"0 0", "8 0", "7 1", "0 0"}), ends);
        session.connectionState = kNotConnected;
    }
}

TEST(ScanStopWaitTest, WaitsByTheClockIfThereIsOne) {
    VirtualClock clock, none(0);
    ScriptedSerial serial(clock);
    DataAcqEngine engine(serial);
    ScanStop stop(engine);
    const ScopedClock counts(clock);
    EXPECT_TRUE(stop.WaitUnlessAsked(1000));
    EXPECT_EQ(1000.0, clock.PeekMilliseconds());
    const ScopedClock doesNot(none);
    EXPECT_FALSE(stop.WaitUnlessAsked(1000));
}

// Time that passes while it sleeps alone, and then somebody asks.
class AskedClock final : public IClock {
public:
    std::int64_t Counter() override { return now; }
    std::int64_t Frequency() override { return 1000; }
    void SleepUntil(std::int64_t counter) override {
        now = counter;
        if (stop != nullptr) stop->Ask(false);
    }
    std::int64_t now = 0;
    ScanStop* stop = nullptr;
};

TEST(ScanStopWaitTest, EndsWithinASliceOfAStop) {
    AskedClock clock;
    const ScopedClock scope(clock);
    DataAcqEngine engine;
    ScanStop stop(engine);
    clock.stop = &stop;
    EXPECT_FALSE(stop.WaitUnlessAsked(1000));
    EXPECT_LE(clock.now, 50);
}

}  // namespace
}  // namespace corvex::test
