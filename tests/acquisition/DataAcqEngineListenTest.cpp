// Silence and chatter.
#include "tests/acquisition/EngineTestHelper.h"

namespace corvex {

using test::Bytes;
using test::EngineTest;
using test::Words;

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

}  // namespace

TEST_F(ListenSilenceTest, AQuietLineIsSilent) {
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(line.Calls(), (Words{"timeouts 20 0 20 0 300", "purge 1 1", "read 1 -> 0"}));
    EXPECT_EQ(callback.words, (Words{"SilenceBegin", "SilenceEnd 0"}));
    EXPECT_EQ(callback.last.command, &command);
    EXPECT_EQ(clock.PeekMilliseconds(), 20.0);
}

TEST_F(ListenSilenceTest, SilenceComesAfterTheNoise) {
    line.Feed({1, 2, 3, 4, 5}, 1, 10);
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "SilenceEnd 0");
    EXPECT_EQ(clock.PeekMilliseconds(), 41.0 + 20.0);
}

TEST_F(ListenSilenceTest, ALineThatNeverStopsTimesOut) {
    line.FeedForEver(0x55, 10);
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SilenceEnd 4");
    // At most the elapsed time: the byte that comes at 100 ms ends it.
    EXPECT_EQ(clock.PeekMilliseconds(), 100.0);
    EXPECT_EQ(line.Calls("read").size(), 10U);
}

TEST_F(ListenSilenceTest, WhatCameBeforeIsPurged) {
    line.Feed({1, 2, 3});
    engine.RunCommand(&command);
    EXPECT_EQ(line.Calls("read"), (Words{"read 1 -> 0"}));
}

TEST_F(ListenSilenceTest, ARefusedBeginningHasNoEnd) {
    callback.answers["SilenceBegin"] = -3;
    EXPECT_EQ(engine.RunCommand(&command), -3);
    EXPECT_EQ(callback.words, (Words{"SilenceBegin"}));
    EXPECT_EQ(line.Calls(), (Words{"timeouts 20 0 20 0 300"}));
}

TEST_F(ListenSilenceTest, TheEndGivesTheResult) {
    callback.answers["SilenceEnd"] = -4;
    EXPECT_EQ(engine.RunCommand(&command), -4);
}

TEST_F(ListenSilenceTest, AStopIsConsumedAndGoesBeforeTheTimeout) {
    line.FeedForEver(0x55, 10);
    line.onRead = [this](std::uint32_t number) {
        if (number == 10) engine.RequestStop();
    };
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "SilenceEnd 2");
    EXPECT_EQ(engine.stopRequested, 0U);
    EXPECT_EQ(line.Calls("read").size(), 10U);
}

TEST_F(ListenSilenceTest, AStopOnAQuietLineIsNotSeen) {
    line.onRead = [this](std::uint32_t) { engine.RequestStop(); };
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "SilenceEnd 0");
    EXPECT_EQ(engine.stopRequested, 1U);
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

TEST_F(ListenSilenceTest, NoLengthAndNoTimeReturnAtOnce) {
    command.silencelen = 0;
    command.totaltimeout = 0;
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words, Words{});
    EXPECT_EQ(clock.PeekMilliseconds(), 0.0);
}

TEST_F(ListenSilenceTest, ADelayEndsOnAMachineWithoutACounter) {
    test::VirtualClock none(0);
    const ScopedClock inForce(none);
    command.silencelen = 0;
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(engine.RunListenSilence(nullptr), kResultFail);
}

TEST_F(ListenChatterTest, APatternInTheFirstBytesNeedsNoShifting) {
    line.Feed({7, 8, 9});
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(line.Calls(), (Words{"timeouts 50 0 400 0 300", "read 3 -> 3"}));
    EXPECT_EQ(callback.words, (Words{"ChatterBegin", "ChatterEnd 0"}));
    EXPECT_EQ(callback.last.command, &command);
}

TEST_F(ListenChatterTest, ThePatternIsFoundByShifting) {
    line.Feed({1, 7, 8, 7, 8, 9, 1});
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "ChatterEnd 0");
    EXPECT_EQ(line.Calls("read"), (Words{"read 3 -> 3", "read 1 -> 1", "read 1 -> 1", "read 1 -> 1"}));
}

TEST_F(ListenChatterTest, TooFewBytesAtFirstTimeOutAtOnce) {
    line.Feed({7, 8});
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "ChatterEnd 4");
    EXPECT_EQ(line.Calls("read").size(), 1U);
}

TEST_F(ListenChatterTest, OnlyTheTimeEndsTheSearch) {
    line.FeedForEver(1, 10);
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "ChatterEnd 4");
    // At 400 ms the time is not yet less than the elapsed: one more byte is read.
    EXPECT_EQ(clock.PeekMilliseconds(), 410.0);
}

// A failed read costs no time on this line, so that several fit into the listening time.
TEST_F(ListenChatterTest, AReadOfNothingDoesNotEndTheSearch) {
    line.Feed({1, 7, 8, 7, 8, 9});
    line.failReads = {2, 3};
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "ChatterEnd 0");
    EXPECT_EQ(line.Calls("read").size(), 6U);
}

// The window moves before each read, filled or not: a pattern with a failed read in its middle is not seen.
TEST_F(ListenChatterTest, AReadOfNothingMovesTheWindowAllTheSame) {
    line.Feed({1, 7, 8, 9});
    line.failReads = {2};
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "ChatterEnd 4");
}

// 1 7 8 becomes 7 8 8 and then 8 8 9: the last byte stays in its place and counts again.
TEST_F(ListenChatterTest, TheLastByteStandsTwiceAfterAReadOfNothing) {
    const Bytes wanted{8, 8, 9};
    command.SetBytes(wanted.data(), 3);
    line.Feed({1, 7, 8, 9});
    line.failReads = {2};
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "ChatterEnd 0");
}

TEST_F(ListenChatterTest, AReadOfNothingSkipsTheCompare) {
    const Bytes wanted{8, 8, 8};
    command.SetBytes(wanted.data(), 3);
    line.Feed({1, 7, 8});
    line.failReads = {2, 3};  // the window is 8 8 8 after the second
    line.onRead = [this](std::uint32_t number) {
        if (number == 4) engine.RequestStop();
    };
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "ChatterEnd 2");
}

TEST_F(ListenChatterTest, AStopStaysForTheMacroAndComesWithoutAVerdict) {
    line.Feed({1, 7, 8, 9});
    line.onRead = [this](std::uint32_t number) {
        if (number == 2) engine.RequestStop();
    };
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "ChatterEnd 2");  // though this very read found it
    EXPECT_EQ(engine.stopRequested, 1U);
}

TEST_F(ListenChatterTest, AStopDuringTheFirstReadIsNotSeenWhenItFinds) {
    line.Feed({7, 8, 9});
    line.onRead = [this](std::uint32_t) { engine.RequestStop(); };
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "ChatterEnd 0");
}

TEST_F(ListenChatterTest, NoPurgePrecedesIt) {
    line.Feed({7, 8, 9});
    engine.RunCommand(&command);
    EXPECT_EQ(line.Calls("purge"), Words{});
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

TEST_F(ListenChatterTest, TheEndGivesTheResult) {
    line.Feed({7, 8, 9});
    callback.answers["ChatterEnd"] = -6;
    EXPECT_EQ(engine.RunCommand(&command), -6);
}

}  // namespace corvex
