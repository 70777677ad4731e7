// Silence and chatter.
#include <set>
#include <thread>

#include "tests/acquisition/EngineTestHelper.h"

namespace corvex::test {
namespace {

class ListenSilenceTest : public EngineTest {
protected:
    ListenSilenceTest() {
        Open();
        command.silencelen = 20;
        command.totaltimeout = 100;
    }

    ADXCListenSilence command;
};

class ListenChatterTest : public EngineTest {
protected:
    ListenChatterTest() {
        Open();
        const Bytes wanted{7, 8, 9};
        command.SetBytes(wanted.data(), 3);
    }

    ADXCListenChatter command;
};

TEST_F(ListenSilenceTest, AQuietLineIsSilent) {
    line.Feed({1, 2, 3});  // what came before is purged
    callback.answers["SilenceEnd"] = -4;
    EXPECT_EQ(engine.RunCommand(&command), -4);
    EXPECT_EQ(line.Calls(), (Words{"timeouts 20 0 20 0 300", "purge 1 1", "read 1 -> 0"}));
    EXPECT_EQ(callback.words, (Words{"SilenceBegin", "SilenceEnd 0"}));
    EXPECT_EQ(callback.last.command, &command);
    EXPECT_EQ(clock.PeekMilliseconds(), 20.0);
}

struct SilenceCase {
    const char* behaviour;
    Bytes noise;  // from 1 ms on, a byte each 10 ms
    bool endless;
    std::uint32_t stopAtRead, silencelen;
    const char* end;
    double ms;
    std::size_t reads;
};

const SilenceCase kSilences[] = {
    {"SilenceComesAfterTheNoise", {1, 2, 3, 4, 5}, false, 0, 20, "SilenceEnd 0", 41.0 + 20.0, 6},
    // At most the elapsed time: the byte that comes at 100 ms ends it.
    {"ALineThatNeverStopsTimesOut", {}, true, 0, 20, "SilenceEnd 4", 100.0, 10},
    {"AStopGoesBeforeTheTimeout", {}, true, 10, 20, "SilenceEnd 2", 100.0, 10},
    {"AStopIsNotSeenWhenTheSilenceIsThereBefore", {}, false, 1, 20, "SilenceEnd 0", 20.0, 1},
    {"AStopCutsTheWaitForALongSilence", {}, false, 3, 0xFFFFFFFF, "SilenceEnd 2", 150.0, 3},
};

class ListenSilenceLine : public ListenSilenceTest, public testing::WithParamInterface<SilenceCase> {};

TEST_P(ListenSilenceLine, EndsAsTold) {
    line.Feed(GetParam().noise, 1, 10);
    if (GetParam().endless) line.FeedForEver(0x55, 10);
    command.silencelen = GetParam().silencelen;
    StopAtRead(GetParam().stopAtRead);
    EXPECT_EQ(LastOf(command), GetParam().end);
    EXPECT_EQ(clock.PeekMilliseconds(), GetParam().ms);
    EXPECT_EQ(line.Calls("read").size(), GetParam().reads);
}

INSTANTIATE_TEST_SUITE_P(All, ListenSilenceLine, testing::ValuesIn(kSilences),
                         [](const auto& info) { return std::string(info.param.behaviour); });

TEST_F(ListenSilenceTest, ARefusedBeginningHasNoEnd) {
    callback.answers["SilenceBegin"] = -3;
    EXPECT_EQ(engine.RunCommand(&command), -3);
    EXPECT_EQ(callback.words, (Words{"SilenceBegin"}));
    EXPECT_EQ(line.Calls(), (Words{"timeouts 20 0 20 0 300"}));
}

TEST_F(ListenSilenceTest, NoLengthMakesItAPureDelay) {
    command.silencelen = 0;
    clock.SetStep(1024);  // a millisecond each time somebody looks
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words, Words{});
    EXPECT_EQ(line.Calls(), Words{});
    EXPECT_GE(clock.PeekMilliseconds(), 100.0);
    EXPECT_LE(clock.PeekMilliseconds(), 103.0);
    EXPECT_EQ(engine.status.command, &command);
}

// Proves under ThreadSanitizer that a stop from outside needs no lock.
TEST_F(ListenSilenceTest, AStopCutsADelayWithinASlice) {
    command.silencelen = 0;
    command.totaltimeout = 0xFFFFFFFF;
    std::thread stopper([this] {
        while (clock.PeekMilliseconds() < 1000)
            std::this_thread::yield();
        engine.RequestStop();
    });
    EXPECT_EQ(engine.RunCommand(&command), 0);
    stopper.join();
    EXPECT_EQ(engine.status.code, 2U);
    EXPECT_EQ(callback.words, Words{});
    clock.SetStep(1024);
    const double began = clock.PeekMilliseconds();
    engine.RunCommand(&command);  // the stop still stands
    EXPECT_LE(clock.PeekMilliseconds() - began, 50.0);
}

// Most of it is slept away; what is left is a matter of milliseconds.
TEST_F(ListenSilenceTest, ALongDelayDoesNotSpin) {
    command.silencelen = 0;
    command.totaltimeout = 10'000;
    clock.SetStep(64);
    engine.RunCommand(&command);
    EXPECT_GE(clock.PeekMilliseconds(), 10'000.0);
    EXPECT_LE(clock.PeekMilliseconds(), 10'001.0);
    EXPECT_LT(clock.Readings(), 1500U);
}

TEST_F(ListenSilenceTest, NoLengthAndNoTimeReturnAtOnce) {
    command.silencelen = command.totaltimeout = 0;
    EXPECT_EQ(WordsOf(command), Words{});
    EXPECT_EQ(clock.PeekMilliseconds(), 0.0);
}

TEST_F(ListenSilenceTest, ADelayEndsOnAMachineWithoutACounter) {
    VirtualClock none(0);
    const ScopedClock inForce(none);
    command.silencelen = 0;
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(engine.RunListenSilence(nullptr), kResultFail);
}

TEST_F(ListenChatterTest, APatternInTheFirstBytesNeedsNoShifting) {
    line.Feed({7, 8, 9});
    callback.answers["ChatterEnd"] = -6;
    EXPECT_EQ(engine.RunCommand(&command), -6);
    EXPECT_EQ(line.Calls(), (Words{"timeouts 50 0 50 0 300", "read 1 -> 1", "read 1 -> 1", "read 1 -> 1"}));
    EXPECT_EQ(Told(), "50 0 400 0 300");
    EXPECT_EQ(callback.words, (Words{"ChatterBegin", "ChatterEnd 0"}));
    EXPECT_EQ(callback.last.command, &command);
}

TEST_F(ListenChatterTest, OnlyTheTimeEndsTheSearch) {
    line.FeedForEver(1, 10);
    EXPECT_EQ(LastOf(command), "ChatterEnd 4");
    // At 400 ms the time is not yet less than the elapsed: one more byte is read.
    EXPECT_EQ(clock.PeekMilliseconds(), 410.0);
}

// A failed read costs no time on this line, so that several fit into the listening time. The first three reads are
// those of the window, which moves before each read, filled or not.
struct ChatterCase {
    const char* behaviour;
    Bytes wanted, heard;
    std::set<std::uint32_t> failed;
    std::uint32_t stopAtRead;
    const char* end;
    std::size_t reads;
};

const ChatterCase kChatter[] = {
    {"ThePatternIsFoundByShifting", {7, 8, 9}, {1, 7, 8, 7, 8, 9, 1}, {}, 0, "ChatterEnd 0", 6},
    {"TooFewBytesAtFirstTimeOutAtOnce", {7, 8, 9}, {7, 8}, {}, 0, "ChatterEnd 4", 3},
    {"AReadOfNothingDoesNotEndTheSearch", {7, 8, 9}, {1, 7, 8, 7, 8, 9}, {4, 5}, 0, "ChatterEnd 0", 8},
    {"APatternWithAFailedReadInItsMiddleIsNotSeen", {7, 8, 9}, {1, 7, 8, 9}, {4}, 0, "ChatterEnd 4", 21},
    // 1 7 8 becomes 7 8 8 and then 8 8 9: the last byte stays in its place and counts again.
    {"TheLastByteStandsTwiceAfterAReadOfNothing", {8, 8, 9}, {1, 7, 8, 9}, {4}, 0, "ChatterEnd 0", 5},
    // The window is 8 8 8 after the second.
    {"AReadOfNothingSkipsTheCompare", {8, 8, 8}, {1, 7, 8}, {4, 5}, 6, "ChatterEnd 2", 6},
    // Though this very read found it.
    {"AStopComesWithoutAVerdict", {7, 8, 9}, {1, 7, 8, 9}, {}, 4, "ChatterEnd 2", 4},
    {"AStopDuringTheFirstReadIsNotSeenWhenItFinds", {7, 8, 9}, {7, 8, 9}, {}, 1, "ChatterEnd 0", 3},
};

class ListenChatterLine : public ListenChatterTest, public testing::WithParamInterface<ChatterCase> {};

TEST_P(ListenChatterLine, EndsAsTold) {
    command.SetBytes(GetParam().wanted.data(), 3);
    line.Feed(GetParam().heard);
    line.failReads = GetParam().failed;
    StopAtRead(GetParam().stopAtRead);
    EXPECT_EQ(LastOf(command), GetParam().end);
    EXPECT_EQ(line.Calls("read").size(), GetParam().reads);
    EXPECT_EQ(line.Calls("purge"), Words{});
}

INSTANTIATE_TEST_SUITE_P(All, ListenChatterLine, testing::ValuesIn(kChatter),
                         [](const auto& info) { return std::string(info.param.behaviour); });

TEST_F(ListenChatterTest, AStopCutsAWaitWithoutLimit) {
    command.listentimeout = 0;
    StopAtRead(100);
    EXPECT_EQ(LastOf(command), "ChatterEnd 2");
    EXPECT_EQ(clock.PeekMilliseconds(), 5000.0);
}

TEST_F(ListenChatterTest, ABadArgumentCallsNobody) {
    command.SetBytes(nullptr, 0);
    EXPECT_EQ(engine.RunCommand(&command), kResultFail);
    EXPECT_EQ(engine.RunListenChatter(nullptr), kResultFail);
    EXPECT_EQ(callback.words, Words{});
}

TEST_F(ListenChatterTest, ARefusedBeginningReadsNothing) {
    callback.answers["ChatterBegin"] = -3;
    EXPECT_EQ(engine.RunCommand(&command), -3);
    EXPECT_EQ(callback.words, (Words{"ChatterBegin"}));
    EXPECT_EQ(line.Calls("read"), Words{});
}

TEST_F(ListenChatterTest, ADeviceThatVanishesEndsTheSearch) {
    command.listentimeout = 60'000;
    line.Feed({1, 2, 3, 4});
    line.onRead = [this](std::uint32_t number) {
        if (number > 4) line.Vanish();
    };
    EXPECT_EQ(LastOf(command), "ChatterEnd 4");
    EXPECT_EQ(clock.PeekMilliseconds(), 50.0);
}

}  // namespace
}  // namespace corvex::test
