#include "acquisition/DataAcqEngine.h"
#include "tests/acquisition/EngineTestHelper.h"

namespace corvex::test {
namespace {

class DataAcqEngineTest : public EngineTest {};

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
    EXPECT_EQ(line.Calls(), (Words{"open COM1", "getstate", "setstate 8192", "getstate", "timeouts 40 0 50 0 300",
                                   "timeouts 300 0 50 0 110", "queues 1024 512"}));
    EXPECT_EQ(Told(), "300 0 2000 0 110");
}

TEST_F(DataAcqEngineTest, AnyFailedStepOfOpeningFails) {
    for (bool ScriptedSerial::*const fails :
         {&ScriptedSerial::failOpen, &ScriptedSerial::failTimeouts, &ScriptedSerial::failQueues}) {
        line.*fails = true;
        EXPECT_EQ(engine.OpenPort("COM1", 8192), 0);
        EXPECT_FALSE(line.IsOpen());
        line.*fails = false;
    }
    EXPECT_NE(engine.OpenPort("COM1", 8192), 0);
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

// One that fell between two commands would be lost else.
TEST_F(DataAcqEngineTest, AStopStandsUntilItIsForgotten) {
    Open();
    const ADXCTrigger trigger;
    ADXMacro macro;
    AddNode(macro, trigger);
    engine.RequestStop();
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "MacroEnd 2"}));
    engine.ForgetStop();
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "Trigger", "MacroEnd 0"}));
}

TEST_F(DataAcqEngineTest, AStopIsNoCutAndNeverWeakensOne) {
    engine.RequestStop();
    EXPECT_EQ(engine.stopRequested, DataAcqEngine::kStop);
    engine.RequestCut();
    EXPECT_EQ(engine.stopRequested, DataAcqEngine::kCut);
    engine.RequestStop();
    EXPECT_EQ(engine.stopRequested, DataAcqEngine::kCut);
}

TEST_F(DataAcqEngineTest, AWholeCommandRunsInSpiteOfAStop) {
    Open();
    ADXCSendCommand poll;
    MakePoll(poll);
    poll.replytimeout = 0;
    ADXMacro macro;
    AddNode(macro, poll, 2);
    line.Answer({1, 2, 3}, {1, 2, 3, 4, 5}, 2000);
    engine.RequestStop();
    engine.RunWhole(&macro, 5000);
    EXPECT_EQ(callback.words,
              (Words{"MacroBegin", "SendBegin", "SendEnd 0 5", "SendBegin", "SendEnd 0 5", "MacroEnd 0"}));
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "MacroEnd 2"}));
}

TEST_F(DataAcqEngineTest, ItsTimeOrACutEndAWholeCommand) {
    Open();
    ADXCSendCommand poll;
    MakePoll(poll);
    poll.replytimeout = 0;
    engine.RunWhole(&poll, 5000);
    EXPECT_EQ(callback.words.back(), "SendEnd 2 0");
    EXPECT_EQ(clock.PeekMilliseconds(), 5000.0);
    line.onRead = [this](std::uint32_t) { engine.RequestCut(); };
    engine.RunWhole(&poll, 5000);
    EXPECT_EQ(callback.words.back(), "SendEnd 2 0");
    EXPECT_EQ(clock.PeekMilliseconds(), 5050.0);
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

}  // namespace
}  // namespace corvex::test
