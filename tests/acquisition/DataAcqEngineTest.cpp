#include <thread>

#include "acquisition/DataAcqEngine.h"
#include "tests/acquisition/EngineTestHelper.h"

namespace corvex {

using test::EngineTest;
using test::Words;

namespace {

class DataAcqEngineTest : public EngineTest {};

}  // namespace

TEST_F(DataAcqEngineTest, BeginsEmpty) {
    const DataAcqEngine fresh(line);
    EXPECT_EQ(fresh.flags, 0U);
    EXPECT_EQ(fresh.portRef, &fresh.port);
    EXPECT_EQ(fresh.callback, nullptr);
    EXPECT_EQ(fresh.stopRequested, 0U);
    EXPECT_EQ(fresh.status.source, 0U);
}

TEST_F(DataAcqEngineTest, OpensThePortWithItsOwnTimeoutsAndQueues) {
    EXPECT_NE(engine.OpenPort("COM1", 8192), 0);
    EXPECT_EQ(line.Calls(), (Words{"open COM1", "getstate", "setstate 8192", "timeouts 40 0 300 0 300",
                                   "timeouts 300 0 2000 0 110", "queues 1024 512"}));
}

TEST_F(DataAcqEngineTest, AnyFailedStepOfOpeningFails) {
    line.failOpen = true;
    EXPECT_EQ(engine.OpenPort("COM1", 8192), 0);
    line.failOpen = false;
    line.failTimeouts = true;
    EXPECT_EQ(engine.OpenPort("COM1", 8192), 0);
    EXPECT_FALSE(line.IsOpen());
    line.failTimeouts = false;
    line.failQueues = true;
    EXPECT_EQ(engine.OpenPort("COM1", 8192), 0);
    EXPECT_FALSE(line.IsOpen());
    line.failQueues = false;
    EXPECT_NE(engine.OpenPort("COM1", 8192), 0);
}

TEST_F(DataAcqEngineTest, TheDestructorClosesThePort) {
    {
        DataAcqEngine other(line);
        ASSERT_NE(other.OpenPort("COM1", 8192), 0);
    }
    EXPECT_FALSE(line.IsOpen());
}

TEST_F(DataAcqEngineTest, RefusesWhatItCannotRun) {
    const ADXCTrigger trigger;
    EXPECT_EQ(engine.RunCommand(&trigger), kResultFail);  // closed
    Open();
    EXPECT_EQ(engine.RunCommand(nullptr), kResultFail);
    const ADXObject unknown;
    EXPECT_EQ(engine.RunCommand(&unknown), kResultFail);
    EXPECT_EQ(kResultFail, static_cast<std::int32_t>(0x80004005));
    EXPECT_EQ(kResultNoMemory, static_cast<std::int32_t>(0x8007000E));
    EXPECT_EQ(callback.words, Words{});
    engine.callback = nullptr;
    EXPECT_EQ(engine.RunCommand(&trigger), kResultFail);
}

TEST_F(DataAcqEngineTest, EveryCommandBeginsByForgettingAStopRequest) {
    Open();
    const ADXCTrigger trigger;
    engine.RequestStop();
    EXPECT_EQ(engine.stopRequested, 1U);
    EXPECT_EQ(engine.RunCommand(&trigger), 0);
    EXPECT_EQ(engine.stopRequested, 0U);
    const ADXObject unknown;
    engine.RequestStop();
    EXPECT_EQ(engine.RunCommand(&unknown), kResultFail);
    EXPECT_EQ(engine.stopRequested, 0U);
}

TEST_F(DataAcqEngineTest, ATriggerIsHandedToTheCallback) {
    Open();
    ADXCTrigger trigger;
    trigger.triggertype = 0x10;
    engine.status.code = 7;
    callback.answers["Trigger"] = -5;
    EXPECT_EQ(engine.RunCommand(&trigger), -5);
    EXPECT_EQ(callback.words, (Words{"Trigger"}));
    EXPECT_EQ(callback.last.command, &trigger);
    EXPECT_EQ(callback.last.code, 0U);
    EXPECT_EQ(engine.RunTrigger(nullptr), kResultFail);
    EXPECT_EQ(callback.words.size(), 1U);
}

// Proves under ThreadSanitizer that a stop from outside needs no lock.
TEST_F(DataAcqEngineTest, AStopMayComeFromAnotherThread) {
    Open();
    line.FeedForEver(0x55, 1);
    ADXCListenSilence silence;
    silence.silencelen = 50;
    silence.totaltimeout = 0xFFFFFFFF;
    std::thread stopper([this] {
        while (clock.PeekMilliseconds() < 1000)
            std::this_thread::yield();
        engine.RequestStop();
    });
    EXPECT_EQ(engine.RunCommand(&silence), 0);
    stopper.join();
    EXPECT_EQ(callback.words, (Words{"SilenceBegin", "SilenceEnd 2"}));
}

}  // namespace corvex
