// Scans of every kind of endless command, stopped at any moment.
#include <algorithm>
#include <random>
#include <thread>

#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "tests/session/SessionTestHelper.h"
#include "tests/support/AttackRounds.h"

namespace corvex::test {
namespace {

constexpr std::uint32_t kForEver = 0xFFFFFFFF;

class StopStormTest : public testing::Test {
protected:
    StopStormTest() {
        ADXDefinition& definition = session.definition;
        auto* trigger = Add<ADXCTrigger>(definition, "TRIGGER");
        auto* noDelay = Delay("NODELAY", 0);
        auto* silent = AddSend(definition, "SILENT", {0xB0}, 2);
        silent->replytimeout = 0;
        auto* answered = AddSend(definition, "ANSWERED", {0xA0}, 2);
        serial.Answer({0xA0}, {3, 4});
        auto* chatter = Add<ADXCListenChatter>(definition, "CHATTER");
        const std::uint8_t wanted = 7;
        chatter->SetBytes(&wanted, 1);
        chatter->listentimeout = 0;
        auto* quiet = Add<ADXCListenSilence>(definition, "QUIET");
        quiet->silencelen = quiet->totaltimeout = kForEver;
        auto* slow = Add<ADXC160BaudListen>(definition, "SLOW");
        slow->packetsize = 1000;
        commands_ = {silent,
                     chatter,
                     quiet,
                     Delay("DELAY", kForEver),
                     Endless("TRIGGERS", {trigger}),
                     Endless("DELAYS", {noDelay}),
                     Endless("POLLS", {answered, trigger}),
                     Endless("NESTED", {Endless("INNER", {noDelay, answered, trigger})}),
                     Endless("SLOWS", {slow}),
                     answered};
        definition.disconnectcmd = AddSend(definition, "DISCONNECT", {0xD0}, 2);
        serial.Answer({0xD0}, {5, 6});
    }

    ADXCListenSilence* Delay(const char* id, std::uint32_t ms) {
        auto* delay = Add<ADXCListenSilence>(session.definition, id);
        delay->silencelen = 0;
        delay->totaltimeout = ms;
        return delay;
    }
    ADXMacro* Endless(const char* id, const std::vector<const ADXObject*>& commands) {
        ADXMacro* macro = AddMacro(session.definition, id, commands);
        macro->repeatcount = kForEver;
        return macro;
    }
    ADXObject* Any() { return commands_[random_() % commands_.size()]; }
    // Up to a millisecond, now and then none.
    void LetItRun() {
        const auto quarters = static_cast<std::int64_t>(random_() % 5);
        const std::int64_t until = SystemClock().Counter() + SystemClock().Frequency() / 4000 * quarters;
        while (SystemClock().Counter() < until)
            std::this_thread::yield();
    }

    VirtualClock clock;
    ScopedClock scope{clock};
    ScriptedSerial serial{clock};
    SessionState session{{}, serial};
    std::vector<ADXObject*> commands_;
    std::mt19937 random_{1};
};

TEST_F(StopStormTest, EveryScanStopsAndDisconnects) {
    for (unsigned round = 0; round < AttackRounds(200); ++round) {
        session.definition.connectcmd = random_() % 2 == 0 ? Any() : nullptr;
        session.definition.monitorcmd = Any();
        session.ToggleScan();
        LetItRun();
        session.StartStopThread(kStopScan | (random_() % 2 == 0 ? kStopWindow : 0U));
        ASSERT_TRUE(session.WaitForThreads(std::chrono::seconds(60))) << "round " << round;
        ASSERT_FALSE(serial.IsOpen());
        const Calls writes = serial.Calls("write");
        ASSERT_EQ("write 208", writes.back()) << "round " << round;
        ASSERT_EQ(1, std::count(writes.begin(), writes.end(), "write 208"));
        ASSERT_EQ(0U, session.scanning);
        serial.ForgetCalls();
    }
}

TEST_F(StopStormTest, EveryScanStopsWhileItsDeviceComesAndGoes) {
    for (unsigned round = 0; round < AttackRounds(200); ++round) {
        session.definition.connectcmd = random_() % 2 == 0 ? Any() : nullptr;
        session.definition.monitorcmd = Any();
        session.ToggleScan();
        for (unsigned turns = random_() % 4; turns > 0; --turns) {
            LetItRun();
            serial.Vanish();
            LetItRun();
            serial.ComeBack();
        }
        if (random_() % 2 == 0) serial.Vanish();
        LetItRun();
        session.StartStopThread(kStopScan | (random_() % 2 == 0 ? kStopWindow : 0U));
        ASSERT_TRUE(session.WaitForThreads(std::chrono::seconds(60))) << "round " << round;
        ASSERT_FALSE(serial.IsOpen());
        ASSERT_EQ(0U, session.scanning);
        ASSERT_EQ(kNotConnected, session.connectionState);
        serial.ComeBack();
        serial.ForgetCalls();
    }
}

}  // namespace
}  // namespace corvex::test
