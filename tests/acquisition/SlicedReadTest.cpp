// Reads that are cut into slices, against the same reads in one piece.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "acquisition/QZSerial.h"
#include "session/base/DebugOutput.h"
#include "tests/support/ScriptedSerial.h"
#include "tests/support/TextRecorder.h"

namespace corvex::test {
namespace {

struct Outcome {
    Bytes bytes;
    double at = 0;  // ms
    bool operator==(const Outcome&) const = default;
};

struct Script {
    SerialTimeouts times;
    std::uint32_t count = 0;
    std::vector<std::int64_t> arrivals;  // ms, ascending

    void FeedTo(ScriptedSerial& line) const {
        for (std::size_t i = 0; i < arrivals.size(); ++i)
            line.Feed({static_cast<std::uint8_t>(i + 1)}, arrivals[i]);
    }
};

// Around the length of a slice, of the usual gap, and of their sums.
Script RandomScript(unsigned seed) {
    std::mt19937 random(seed);
    const auto one = [&random](const std::vector<std::uint32_t>& of) { return of[random() % of.size()]; };
    Script script;
    script.times.readInterval = one({0, 1, 20, 49, 50, 51, 75, 120, 0xFFFFFFFF});
    script.times.readConstant = one({0, 1, 50, 51, 99, 100, 110, 200, 400});
    script.times.readMultiplier = one({0, 0, 0, 10});
    const bool endless = script.times.readConstant == 0 && script.times.readMultiplier == 0;
    if (endless && script.times.readInterval == 0xFFFFFFFF) script.times.readInterval = 75;
    script.count = 1 + static_cast<std::uint32_t>(random() % 12);
    std::int64_t at = 0;
    for (std::uint32_t i = random() % 16; i > 0; --i)
        script.arrivals.push_back(at += one({0, 0, 0, 1, 5, 20, 49, 50, 51, 74, 75, 76, 100, 150}));
    // Without a total only bytes end a read.
    for (std::uint32_t i = 0; endless && i < 4 * script.count; ++i)
        script.arrivals.push_back(at += 10);
    return script;
}

template <class Reader>
std::vector<Outcome> ReadThrice(const Script& script, VirtualClock& clock, const Reader& read) {
    std::vector<Outcome> outcomes;
    for (int i = 0; i < 3; ++i) {
        Bytes bytes(script.count);
        bytes.resize(read(bytes.data(), script.count));
        outcomes.push_back({bytes, clock.PeekMilliseconds()});
    }
    return outcomes;
}

class SlicedReadTest : public ::testing::Test {
protected:
    SlicedReadTest() { port_.Open("COM1", 8192); }

    void Times(std::uint32_t interval, std::uint32_t total) {
        port_.SetTimeouts(interval, 0, total, 0, 300, QZSerial::kAllTimeouts);
    }
    std::uint32_t Read(std::uint32_t count) {
        Bytes bytes(count);
        return port_.Read(bytes.data(), count);
    }
    // Says stop once the clock is there.
    void StopAt(std::int64_t ms) {
        port_.giveUp = [this, ms] { return clock_.PeekMilliseconds() >= static_cast<double>(ms); };
    }

    VirtualClock clock_;
    ScopedClock scope_{clock_};
    ScriptedSerial line_{clock_};
    QZSerial port_{line_};
};

TEST_F(SlicedReadTest, BytesAndMomentsAreThoseOfAReadInOnePiece) {
    for (unsigned seed = 1; seed <= 3000; ++seed) {
        const Script script = RandomScript(seed);
        VirtualClock clock;
        ScriptedSerial whole(clock);
        script.FeedTo(whole);
        whole.SetTimeouts(ScriptedSerial::kHandle, script.times);
        const auto wanted = ReadThrice(script, clock, [&](std::uint8_t* bytes, std::uint32_t count) {
            return whole.Read(ScriptedSerial::kHandle, bytes, count);
        });
        VirtualClock slicedClock;
        const ScopedClock inForce(slicedClock);
        ScriptedSerial sliced(slicedClock);
        QZSerial port(sliced);
        ASSERT_EQ(port.Open("COM1", 8192), 1);
        script.FeedTo(sliced);
        const SerialTimeouts& t = script.times;
        port.SetTimeouts(t.readInterval, t.readMultiplier, t.readConstant, 0, 300, QZSerial::kAllTimeouts);
        const auto got = ReadThrice(script, slicedClock,
                                    [&](std::uint8_t* bytes, std::uint32_t count) { return port.Read(bytes, count); });
        ASSERT_EQ(got, wanted) << "seed " << seed;
        EXPECT_EQ(port.timeouts.readConstant, t.readConstant);
    }
}

TEST_F(SlicedReadTest, NoWaitIsLongerThanASlice) {
    Times(75, 120);
    line_.ForgetCalls();
    EXPECT_EQ(Read(5), 0U);
    EXPECT_EQ(line_.Calls(),
              (std::vector<std::string>{"read 1 -> 0", "read 1 -> 0", "timeouts 75 0 20 0 300", "read 1 -> 0"}));
    EXPECT_EQ(clock_.PeekMilliseconds(), 120.0);
}

TEST_F(SlicedReadTest, AShortTotalNeedsNoSlices) {
    Times(75, 50);
    line_.ForgetCalls();
    line_.Feed({1, 2, 3});
    EXPECT_EQ(Read(5), 3U);
    EXPECT_EQ(line_.Calls(), (std::vector<std::string>{"read 5 -> 3"}));
}

TEST_F(SlicedReadTest, AReadIsOneDump) {
    TextRecorder text;
    DebugOutput log;
    log.edit = &text;
    port_.sink = &log;
    Times(75, 200);
    line_.Feed({'a', 'b', 'c'}, 10, 60);
    EXPECT_EQ(Read(3), 3U);
    EXPECT_EQ(text.Text().rfind("QZSerial: Read\r\n0000: 61 62 63 ", 0), 0U) << text.Text();
    port_.sink = nullptr;
    EXPECT_EQ(text.Text().find("Read", 11), std::string::npos);
}

TEST_F(SlicedReadTest, AStopEndsAWaitAfterItsSlice) {
    Times(3'600'000, 3'600'000);
    StopAt(120);
    EXPECT_EQ(Read(1), 0U);
    EXPECT_TRUE(port_.WasCut());
    EXPECT_EQ(clock_.PeekMilliseconds(), 150.0);
    port_.giveUp = nullptr;
    line_.Feed({1});
    EXPECT_EQ(Read(1), 1U);
    EXPECT_FALSE(port_.WasCut());
}

TEST_F(SlicedReadTest, AStopEndsAReadWithoutLimits) {
    Times(0, 0);
    line_.Feed({1, 2}, 30, 30);
    StopAt(1000);
    EXPECT_EQ(Read(3), 2U);
    EXPECT_TRUE(port_.WasCut());
    EXPECT_LE(clock_.PeekMilliseconds(), 1050.0);
}

// Bytes that keep coming must not keep the stop out.
TEST_F(SlicedReadTest, AStopEndsAReadThatNeverFallsSilent) {
    Times(75, 3'600'000);
    line_.FeedForEver(0x55, 10);
    StopAt(1000);
    EXPECT_LT(Read(10'000), 110U);
    EXPECT_TRUE(port_.WasCut());
}

TEST_F(SlicedReadTest, WhatHasComeIsReadInSpiteOfAStop) {
    Times(75, 200);
    StopAt(0);
    line_.Feed({1, 2, 3, 4, 5});
    EXPECT_EQ(Read(5), 5U);
    EXPECT_FALSE(port_.WasCut());
}

// A dead line ends even a read without limits: nobody could tell it from a silent one else. Not at once, so that a loop
// over it does not spin.
TEST_F(SlicedReadTest, AVanishedDeviceEndsAReadWithASlice) {
    line_.Vanish();
    for (const std::uint32_t total : {0U, 60'000U}) {
        Times(0, total);
        const double began = clock_.PeekMilliseconds();
        EXPECT_EQ(Read(3), 0U);
        EXPECT_FALSE(port_.WasCut());
        EXPECT_EQ(clock_.PeekMilliseconds() - began, 50.0);
    }
}

TEST_F(SlicedReadTest, AFailedCallIsNotRepeated) {
    Times(75, 200);
    line_.failReads = {1, 2};
    line_.ForgetCalls();
    EXPECT_EQ(Read(3), 0U);
    EXPECT_EQ(line_.Calls("read").size(), 1U);
}

// There is nothing to measure slices with.
TEST_F(SlicedReadTest, WithoutACounterAReadIsInOnePiece) {
    VirtualClock none(0);
    const ScopedClock inForce(none);
    Times(75, 200);
    line_.ForgetCalls();
    line_.Feed({1, 2, 3});
    EXPECT_EQ(Read(3), 3U);
    EXPECT_EQ(line_.Calls(), (std::vector<std::string>{"read 3 -> 3"}));
}

}  // namespace
}  // namespace corvex::test
