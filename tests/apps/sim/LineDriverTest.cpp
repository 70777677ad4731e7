#include <gtest/gtest.h>

#include <cmath>

#include "apps/sim/LineDriver.h"
#include "tests/apps/sim/SimTestHelper.h"

namespace corvex {
namespace {

using test::Bytes;
using test::kPollRequest;
using test::LineFake;

constexpr double kByte = 10.0 / 8192;

class LineDriverTest : public testing::Test {
protected:
    LineDriverTest() {
        test::AddSend(definition, "POLL", kPollRequest, 63, 3, 59);
        test::AddValue(definition, "RPM", 0, 16).rangehigh = 60000;
        options.pace = true;
        options.seconds = 1.0;
    }

    SimStats Run() {
        LineDriver driver(line, definition, options);
        const std::atomic<bool> stop{false};
        driver.Run(stop);
        return driver.Stats();
    }

    static double Seconds(std::int64_t counts) { return static_cast<double>(counts) / 1e9; }

    ADXDefinition definition;
    SimOptions options;
    LineFake line;
};

TEST_F(LineDriverTest, TakesEightyThreeMillisecondsForFiveOutAndSixtyThreeBack) {
    line.Type(0.1, kPollRequest);
    const SimStats stats = Run();
    ASSERT_EQ(line.sent.size(), 63U);
    EXPECT_NEAR(Seconds(line.sent.front().at), 0.1 + 6 * kByte, 1e-6);
    EXPECT_NEAR(Seconds(line.sent.back().at), 0.1 + 68 * kByte, 1e-6);
    EXPECT_NEAR(68 * kByte, 0.0830, 0.00005);
    EXPECT_EQ(stats.requests, 1U);
    EXPECT_EQ(stats.pacedReplies, 1U);
    EXPECT_NEAR(stats.meanErrorPercent, 0.0, 1e-3);
}

TEST_F(LineDriverTest, DoesNotAddUpTheLatenessOfSingleBytes) {
    line.lag = 150'000;  // an eighth of a byte time, every time
    line.Type(0.1, kPollRequest);
    const SimStats stats = Run();
    ASSERT_EQ(line.sent.size(), 63U);
    EXPECT_NEAR(Seconds(line.sent.back().at), 0.1 + 68 * kByte, 0.0004);
    EXPECT_LE(stats.latenessMaxMs, 0.31);
    EXPECT_GT(stats.latenessMaxMs, 0.05);
}

// Each byte that is sent takes its time on the line, whoever caused it.
TEST_F(LineDriverTest, EchoesAndAnswersAndIsLateAsItIsTold) {
    const struct {
        const char* name;
        bool echo, silent, definitionEchoes;
        std::uint32_t late;
        std::size_t sent;
        double first, last;  // in bytes of the line behind the request's beginning
    } rows[] = {
        {"plain", false, false, false, 0, 63, 6, 68},
        {"echo", true, false, false, 0, 68, 1, 68},
        {"echo of a definition", false, false, true, 0, 68, 1, 68},
        {"late", false, false, false, 50, 63, 6, 68},
        {"silent", false, true, false, 0, 0, 0, 0},
        {"silent, but for its echo", true, true, false, 0, 5, 1, 5},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        line = LineFake();
        options.echo = row.echo;
        options.silent = row.silent;
        options.late = row.late;
        definition.flags = row.definitionEchoes ? 1 : 0;
        // As it comes from a port: byte by byte.
        for (std::size_t i = 0; i < kPollRequest.size(); ++i)
            line.Type(0.1 + static_cast<double>(i) * kByte, {kPollRequest[i]});
        const SimStats stats = Run();
        EXPECT_EQ(stats.requests, 1U);
        EXPECT_EQ(stats.replies, row.silent ? 0U : 1U);
        ASSERT_EQ(line.sent.size(), row.sent);
        if (row.sent == 0) continue;
        const double begin = 0.1 + row.late / 1000.0;
        EXPECT_NEAR(Seconds(line.sent.front().at), begin + row.first * kByte, 1e-6);
        EXPECT_NEAR(Seconds(line.sent.back().at), begin + row.last * kByte, 1e-6);
        const Bytes sent = line.SentBytes();
        if (row.first < 2) {
            EXPECT_TRUE(std::equal(kPollRequest.begin(), kPollRequest.end(), sent.begin()));
        }
    }
}

TEST_F(LineDriverTest, AnswersAtOnceWithoutPace) {
    options.pace = false;
    line.Type(0.1, kPollRequest);
    line.Type(0.1, kPollRequest);
    const SimStats stats = Run();
    EXPECT_EQ(stats.requests, 2U);
    EXPECT_EQ(stats.pacedReplies, 0U);
    EXPECT_LT(Seconds(line.sent.back().at), 0.1001);
}

TEST_F(LineDriverTest, KeepsUnpacedBytesForAFarEndThatIsFull) {
    options.pace = false;
    line.room = 7;
    line.Type(0.1, kPollRequest);
    const SimStats stats = Run();
    EXPECT_EQ(line.sent.size(), 63U);
    EXPECT_EQ(stats.unread, 0U);
}

TEST_F(LineDriverTest, NeitherWaitsNorSpinsWhenNobodyTakesTheBytes) {
    for (const bool pace : {true, false}) {
        line = LineFake();
        line.room = 0;
        options.pace = pace;
        line.Type(0.1, kPollRequest);
        const SimStats stats = Run();
        EXPECT_EQ(stats.unread, pace ? 63U : 0U);
        EXPECT_LT(line.waits, 2000U);
        EXPECT_GE(line.now, 1'000'000'000);
    }
}

TEST_F(LineDriverTest, LetsANewRequestCutOffTheReply) {
    line.Type(0.1, kPollRequest);
    line.Type(0.13, kPollRequest);
    Run();
    // The first reply's bytes up to the cut, then a whole one.
    const auto before = static_cast<std::size_t>((0.03 - 5 * kByte) / kByte);
    EXPECT_NEAR(static_cast<double>(line.sent.size()), static_cast<double>(before + 63), 1.0);
    EXPECT_NEAR(Seconds(line.sent.back().at), 0.13 + 68 * kByte, 1e-6);
}

TEST_F(LineDriverTest, CountsTheFaultsItMakes) {
    options.pace = false;
    options.drop = 0.2;
    options.noise = 0.3;
    options.seconds = 100;
    for (int i = 0; i < 1000; ++i)
        line.Type(0.1 * (i + 1) - 0.05, kPollRequest);
    const SimStats stats = Run();
    EXPECT_EQ(stats.requests, 1000U);
    EXPECT_EQ(stats.replies + stats.drops, 1000U);
    EXPECT_NEAR(static_cast<double>(stats.drops), 200, 40);
    EXPECT_NEAR(static_cast<double>(stats.noise), 0.3 * static_cast<double>(stats.replies), 45);
    // Damaged replies: about half are a byte short, and only damaged ones are.
    const auto missing = static_cast<double>(stats.replies * 63 - line.sent.size());
    EXPECT_NEAR(missing, static_cast<double>(stats.noise) / 2, 40);
}

TEST_F(LineDriverTest, RepeatsARunForASeed) {
    const auto run = [this](std::uint64_t seed, double gap) {
        line = LineFake();
        options.pace = false;
        options.seed = seed;
        options.drop = options.noise = 0.2;
        options.seconds = 30;
        for (int i = 0; i < 100; ++i)
            line.Type(0.05 + gap * i, kPollRequest);
        Run();
        return line.SentBytes();
    };
    const Bytes first = run(3, 0.1);
    EXPECT_EQ(run(3, 0.21), first);  // at any speed of polling
    EXPECT_NE(run(4, 0.1), first);
}

TEST_F(LineDriverTest, UnplugsAndEndsInTime) {
    options.unplugAfter = 0.3;
    Run();
    EXPECT_TRUE(line.unplugged);
    EXPECT_NEAR(Seconds(line.now), 0.3, 0.03);
}

TEST_F(LineDriverTest, SendsThePatternOnAnIdleLineAndLeavesRoomForSilence) {
    auto& chatter = test::Add<ADXCListenChatter>(definition, "WAKE");
    const Bytes pattern{8, 0x55, 0xA3};
    chatter.SetBytes(pattern.data(), 3);
    test::Add<ADXCListenSilence>(definition, "QUIET").silencelen = 60;
    const SimStats stats = Run();
    ASSERT_GE(stats.idleFrames, 4U);
    const Bytes sent = line.SentBytes();
    EXPECT_TRUE(std::equal(pattern.begin(), pattern.end(), sent.begin()));
    for (std::size_t i = 3; i < sent.size(); i += 3) {
        EXPECT_GE(Seconds(line.sent[i].at - line.sent[i - 1].at), 0.12);
        EXPECT_LE(Seconds(line.sent[i].at - line.sent[i - 1].at), 0.2);
    }
    line = LineFake();
    options.silent = true;
    EXPECT_EQ(Run().idleFrames, 0U);
}

TEST_F(LineDriverTest, TalksBetweenPollsWithoutTouchingReplies) {
    options.chatter = true;
    options.seconds = 21;
    for (int i = 0; i < 80; ++i)
        line.Type(0.2 + 0.25 * i, kPollRequest);
    const SimStats stats = Run();
    EXPECT_EQ(stats.replies, 80U);
    EXPECT_GT(stats.idleFrames, 80U);
    // From a request's first byte to the end of its reply the line carries the reply alone.
    for (int i = 0; i < 80; ++i) {
        const double begin = 0.2 + 0.25 * i;
        std::size_t count = 0;
        for (const auto& one : line.sent) {
            const double at = Seconds(one.at);
            if (at > begin + 1e-6 && at < begin + 68 * kByte + 1e-6) ++count;
        }
        ASSERT_EQ(count, 63U) << i;
    }
}

TEST_F(LineDriverTest, StreamsPacketsAtAHundredAndSixtyBitsASecond) {
    definition.Clear();
    definition.baud = 1600;
    test::Add<ADXC160BaudListen>(definition, "STREAM").packetsize = 20;
    test::AddValue(definition, "V", 19, 8);
    options.seconds = 12.0;
    const SimStats stats = Run();
    EXPECT_EQ(stats.streamPackets, 11U);  // one every 190 bits, 1.1875 s
    for (std::size_t i = 0; i < line.sent.size(); ++i) {
        ASSERT_NEAR(Seconds(line.sent[i].at), static_cast<double>(i + 1) / 160, 1e-6) << i;
    }
    EXPECT_NEAR(static_cast<double>(line.sent.size()), 12 * 160, 2);
}

TEST_F(LineDriverTest, LeavesTheTimeOfAWithheldPacketEmpty) {
    definition.Clear();
    test::Add<ADXC160BaudListen>(definition, "STREAM").packetsize = 20;
    options.seconds = 60.0;
    options.drop = 0.5;
    const SimStats stats = Run();
    EXPECT_EQ(stats.streamPackets + stats.drops, 51U);
    EXPECT_GT(stats.drops, 10U);
    EXPECT_LT(line.sent.size(), stats.streamPackets * 190 + 1);
}

TEST_F(LineDriverTest, DoesNotSpinOverAStreamThatIsNotSent) {
    definition.Clear();
    test::Add<ADXC160BaudListen>(definition, "STREAM").packetsize = 20;
    for (int which = 0; which < 4; ++which) {
        line = LineFake();
        options.pace = which % 2 == 0;
        options.silent = which / 2 == 0;
        options.drop = options.silent ? 0.0 : 1.0;
        Run();
        EXPECT_TRUE(line.sent.empty());
        EXPECT_LT(line.waits, 200U) << which;
        EXPECT_GE(line.now, 1'000'000'000);
    }
}

}  // namespace
}  // namespace corvex
