#include <gtest/gtest.h>

#include <chrono>
#include <numeric>

#include "apps/sim/SimulatorSession.h"
#include "platform/SerialPlatform.h"
#include "tests/apps/sim/SimTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;
using test::kPollRequest;

// A port opened on the simulator's name.
class Port {
public:
    explicit Port(const std::string& name) : handle_(SystemSerial().Open(name.c_str())) {
        EXPECT_NE(handle_, kInvalidSerialHandle) << SystemSerial().LastError();
        SerialSettings settings;
        SystemSerial().GetState(handle_, settings);
        settings.baud = 8192;
        SystemSerial().SetState(handle_, settings);
        SystemSerial().SetTimeouts(handle_, {500, 0, 5000, 0, 1000});
    }
    ~Port() { SystemSerial().Close(handle_); }

    Bytes Poll(std::uint32_t count) {
        SystemSerial().Purge(handle_, true, true);
        EXPECT_EQ(SystemSerial().Write(handle_, kPollRequest.data(), 5), 5U);
        return Read(count);
    }
    Bytes Read(std::uint32_t count) {
        Bytes reply(count);
        reply.resize(SystemSerial().Read(handle_, reply.data(), count));
        return reply;
    }
    void SetTimeouts(const SerialTimeouts& times) { SystemSerial().SetTimeouts(handle_, times); }

private:
    SerialHandle handle_;
};

class SimulatorSessionTest : public testing::Test {
protected:
    SimulatorSessionTest() {
        test::AddSend(definition, "POLL", kPollRequest, 63, 3, 59);
        test::AddValue(definition, "RPM", 0, 16).rangehigh = 60000;
    }

    void Start() {
        std::string error;
        name = session.Start(definition, options, error);
        ASSERT_FALSE(name.empty()) << error;
    }

    ADXDefinition definition;
    SimOptions options;
    SimulatorSession session;
    std::string name;
};

TEST_F(SimulatorSessionTest, AnswersPollsOverItsPort) {
    Start();
    Port port(name);
    for (int i = 0; i < 50; ++i) {
        const Bytes reply = port.Poll(63);
        ASSERT_EQ(reply.size(), 63U);
        ASSERT_EQ(std::accumulate(reply.begin(), reply.end(), 0U) & 0xFFU, 0U);
    }
    session.Stop();
    EXPECT_EQ(session.Stats().replies, 50U);
    EXPECT_FALSE(session.IsRunning());
}

TEST_F(SimulatorSessionTest, ServesOnePortAfterAnotherAndCanBeStartedAgain) {
    for (int run = 0; run < 3; ++run) {
        Start();
        for (int opened = 0; opened < 3; ++opened)
            EXPECT_EQ(Port(name).Poll(63).size(), 63U);
        session.Stop();
    }
    EXPECT_EQ(session.Stats().replies, 3U);
}

TEST_F(SimulatorSessionTest, StopsAlthoughNobodyReads) {
    definition.Clear();
    test::Add<ADXC160BaudListen>(definition, "STREAM").packetsize = 1000;
    Start();
    Port port(name);
    ASSERT_EQ(port.Read(1).size(), 1U);  // it streams now, far more than a terminal holds
    session.Stop();
    EXPECT_FALSE(session.IsRunning());
}

TEST_F(SimulatorSessionTest, TakesTheDeviceAwayWhenUnplugged) {
    options.unplugAfter = 0.05;
    Start();
    Port port(name);
    port.SetTimeouts({0, 0, 50, 0, 50});
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (session.IsRunning() && std::chrono::steady_clock::now() < deadline)
        port.Read(1);
    EXPECT_FALSE(session.IsRunning());
    EXPECT_TRUE(port.Read(1).empty());
    EXPECT_FALSE(SystemSerial().LastError().empty());
    session.Stop();
}

}  // namespace
}  // namespace corvex
