// The machine's port against a live peer (tests/support/pty_peer), natively and under Wine. What must not come before
// its time is checked to the tick; what must not come late is left to the deadline of the test.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "platform/Clock.h"
#include "platform/SerialPlatform.h"

namespace corvex {
namespace {

constexpr std::uint32_t kNow = 0xFFFFFFFF;

// The clock that times a read need not be the one that it is measured with: they part by a tick.
constexpr double kTick = 1.0;

std::string PortName() {
    const char* name = std::getenv("CORVEX_TEST_PORT");
    return name != nullptr ? name : "";
}

double Milliseconds() {
    return static_cast<double>(SystemClock().Counter()) * 1000.0 / static_cast<double>(SystemClock().Frequency());
}

class SerialPortTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(PortName(), "") << "run this program through pty_peer, with the port's name in CORVEX_TEST_PORT";
        handle_ = serial_.Open(PortName().c_str());
        ASSERT_NE(handle_, kInvalidSerialHandle) << serial_.LastError();
        SerialSettings settings;
        ASSERT_TRUE(serial_.GetState(handle_, settings));
        settings = SerialSettings{};
        settings.baud = 8192;
        ASSERT_TRUE(serial_.SetState(handle_, settings)) << serial_.LastError();
        MeetPeer();
        Times({75, 0, 200, 0, 300});
    }
    void TearDown() override { serial_.Close(handle_); }

    void Times(const SerialTimeouts& times) { ASSERT_TRUE(serial_.SetTimeouts(handle_, times)); }

    void Order(const std::string& line) {
        const std::string text = line + "\n";
        ASSERT_EQ(serial_.Write(handle_, text.data(), static_cast<std::uint32_t>(text.size())), text.size());
    }

    std::string Read(std::uint32_t count) {
        std::string bytes(count, '\0');
        const double start = Milliseconds();
        bytes.resize(serial_.Read(handle_, bytes.data(), count));
        took_ = Milliseconds() - start;
        return bytes;
    }

    // Waits until the peer answers, and throws away what came before.
    void MeetPeer() {
        static int number = 0;
        Times({0, 0, 100, 0, 2000});
        const std::string wanted = "pong " + std::to_string(++number) + "\n";
        Order("");
        Order("ping " + std::to_string(number));
        std::string seen;
        const double deadline = Milliseconds() + 20'000;
        while (seen.find(wanted) == std::string::npos && Milliseconds() < deadline)
            seen += Read(1);
        ASSERT_NE(seen.find(wanted), std::string::npos) << "no answer from the peer";
    }

    static std::string Numbered(int first, int count) {
        std::string bytes;
        for (int i = 0; i < count; ++i)
            bytes += static_cast<char>(first + i);
        return bytes;
    }

    ISerialPlatform& serial_ = SystemSerial();
    SerialHandle handle_ = kInvalidSerialHandle;
    double took_ = 0;
};

TEST_F(SerialPortTest, GivesWhatIsAskedForAndKeepsTheRest) {
    Times({0, 0, 5000, 0, 300});
    Order("send 8 0");
    EXPECT_EQ(Read(5), Numbered(1, 5));
    EXPECT_EQ(Read(3), Numbered(6, 3));
}

// Together they take longer than the interval, which counts from byte to byte.
TEST_F(SerialPortTest, GathersBytesThatComeWithinTheInterval) {
    Times({400, 0, 10000, 0, 300});
    const double start = Milliseconds();
    Order("send 12 50");
    EXPECT_EQ(Read(12), Numbered(1, 12));
    EXPECT_GE(Milliseconds() - start, 550.0);
}

TEST_F(SerialPortTest, EndsWhenTheGapIsTooLong) {
    Times({75, 0, 10000, 0, 300});
    Order("split 2 1500 3");
    EXPECT_EQ(Read(5), Numbered(1, 2));
    EXPECT_GE(took_, 75.0 - kTick);
    // The gap counts from the first byte on: the wait before it has the whole total.
    EXPECT_EQ(Read(3), Numbered(3, 3));
}

TEST_F(SerialPortTest, SilenceTakesTheWholeTotal) {
    EXPECT_EQ(Read(5), "");
    EXPECT_GE(took_, 200.0 - kTick);
}

TEST_F(SerialPortTest, TheTotalCutsAStreamWithShortGaps) {
    Times({75, 0, 200, 0, 300});
    Order("send 20 60");
    const std::string bytes = Read(10);
    EXPECT_LT(bytes.size(), 10U);
    EXPECT_EQ(bytes, Numbered(1, static_cast<int>(bytes.size())));
}

TEST_F(SerialPortTest, WithoutAnIntervalOnlyTheTotalEndsAShortRead) {
    Times({0, 0, 1000, 0, 300});
    Order("split 2 120 1");
    EXPECT_EQ(Read(5), Numbered(1, 3));
    EXPECT_GE(took_, 1000.0 - kTick);
}

TEST_F(SerialPortTest, TheLargestIntervalReturnsAtOnceWithWhatIsThere) {
    Times({kNow, 0, 0, 0, 300});
    EXPECT_EQ(Read(5), "");
    Order("send 3 0");
    std::string seen;
    const double deadline = Milliseconds() + 20'000;
    while (seen.size() < 3 && Milliseconds() < deadline)
        seen += Read(5);
    EXPECT_EQ(seen, Numbered(1, 3));
}

TEST_F(SerialPortTest, AWriteThatFindsNoReaderEndsAtItsTotal) {
    Order("deaf 1500");
    const std::string many(400'000, 'x');
    double start = Milliseconds();
    const std::uint32_t moved = serial_.Write(handle_, many.data(), static_cast<std::uint32_t>(many.size()));
    EXPECT_LT(moved, many.size());
    EXPECT_GE(Milliseconds() - start, 300.0);
    start = Milliseconds();
    EXPECT_LT(serial_.Write(handle_, many.data(), static_cast<std::uint32_t>(many.size())), many.size());
    EXPECT_GE(Milliseconds() - start, 300.0);
    MeetPeer();
}

TEST_F(SerialPortTest, PurgeDropsWhatHasComeIn) {
    Times({1000, 0, 5000, 0, 300});
    Order("send 100 0");
    ASSERT_EQ(Read(1), Numbered(1, 1));
    Times({0, 0, 100, 0, 300});
    serial_.Purge(handle_, true, true);
    EXPECT_EQ(Read(5), "");
}

TEST_F(SerialPortTest, AVanishedDeviceIsSilentAndCostsTheTotal) {
    EXPECT_EQ(Read(5), "");
    EXPECT_FALSE(serial_.Vanished(handle_));
    Order("vanish");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Read(5), "");
        EXPECT_GE(took_, 200.0 - kTick);
    }
    EXPECT_TRUE(serial_.Vanished(handle_));
    EXPECT_EQ(serial_.Write(handle_, "x", 1), 0U);
}

TEST_F(SerialPortTest, NoSuchPortIsSaidInWordsAndTheOneThatIsTakesQueues) {
    const char* none = PortName().rfind("COM", 0) == 0 ? "COM9" : "/dev/corvex-none";
    EXPECT_EQ(serial_.Open(none), kInvalidSerialHandle);
    EXPECT_EQ(serial_.LastError(), "no such port");
    EXPECT_TRUE(serial_.SetQueues(handle_, 1024, 512));
    EXPECT_EQ(Read(0), "");
}

}  // namespace
}  // namespace corvex
