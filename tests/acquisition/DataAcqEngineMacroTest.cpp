#include <algorithm>
#include <memory>

#include "tests/acquisition/EngineTestHelper.h"

namespace corvex::test {
namespace {

class DataAcqEngineMacroTest : public EngineTest {
protected:
    DataAcqEngineMacroTest() {
        Open();
        MakePoll(poll);
        line.Answer({1, 2, 3}, {1, 2, 3, 4, 5});
    }
    std::ptrdiff_t Count(const std::string& word) const {
        return std::count(callback.words.begin(), callback.words.end(), word);
    }

    ADXMacro macro;
    ADXCSendCommand poll;
    ADXCTrigger trigger;
};

TEST_F(DataAcqEngineMacroTest, EnclosesTheCallbacksOfItsNodes) {
    AddNode(macro, poll);
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "SendBegin", "SendEnd 0 5", "MacroEnd 0"}));
}

TEST_F(DataAcqEngineMacroTest, RepeatsNodesAndTheWhole) {
    AddNode(macro, trigger, 2);
    AddNode(macro, poll);
    macro.repeatcount = 3;
    engine.RunCommand(&macro);
    EXPECT_EQ(Count("Trigger"), 6);
    EXPECT_EQ(Count("SendBegin"), 3);
    EXPECT_EQ(callback.words[1], "Trigger");
    EXPECT_EQ(callback.words[3], "SendBegin");
}

TEST_F(DataAcqEngineMacroTest, ARepeatcountOfZeroRunsNothing) {
    AddNode(macro, trigger);
    macro.repeatcount = 0;
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "MacroEnd 0"}));
}

TEST_F(DataAcqEngineMacroTest, ANodeWithCountZeroOrWithoutCommandIsPassedOver) {
    AddNode(macro, trigger, 0);
    const ADXMacroNode empty;
    macro.AddNode(&empty);
    AddNode(macro, poll);
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "SendBegin", "SendEnd 0 5", "MacroEnd 0"}));
}

TEST_F(DataAcqEngineMacroTest, BillionsOfRoundsOverNothingEnd) {
    const ADXMacroNode empty;
    for (int i = 0; i < 1000; ++i)
        macro.AddNode(&empty);
    AddNode(macro, trigger, 0);
    macro.repeatcount = 0xFFFFFFFF;
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "MacroEnd 0"}));
}

TEST_F(DataAcqEngineMacroTest, WithoutNodesOnlyTheEndIsCalledAndItsResultCounts) {
    EXPECT_EQ(WordsOf(macro), (Words{"MacroEnd 0"}));
    callback.answers["MacroEnd"] = -2;
    EXPECT_EQ(engine.RunMacro(nullptr), -2);
    EXPECT_EQ(callback.last.command, nullptr);
}

TEST_F(DataAcqEngineMacroTest, ARefusedBeginningGoesToTheEnd) {
    AddNode(macro, trigger);
    callback.answers["MacroBegin"] = -1;
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "MacroEnd 0"}));
}

TEST_F(DataAcqEngineMacroTest, Flag1EndsItWhenTheNodeFails) {
    AddNode(macro, poll, 3, 1);
    AddNode(macro, trigger);
    callback.answers["SendEnd"] = -5;
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "SendBegin", "SendEnd 0 5", "MacroEnd 11"}));
}

TEST_F(DataAcqEngineMacroTest, AFailureOnTheLineIsNoFailureOfTheNode) {
    poll.replysize = 60;
    AddNode(macro, poll, 1, 1);
    AddNode(macro, trigger);
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "SendBegin", "SendEnd 6 5", "Trigger", "MacroEnd 0"}));
}

TEST_F(DataAcqEngineMacroTest, Flag2EndsItWhenTheNodeSucceeds) {
    AddNode(macro, poll, 3, 2);
    AddNode(macro, trigger);
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "SendBegin", "SendEnd 0 5", "MacroEnd 10"}));
}

TEST_F(DataAcqEngineMacroTest, Flag2LetsAFailingNodePass) {
    AddNode(macro, poll, 2, 2);
    AddNode(macro, trigger);
    callback.answers["SendEnd"] = -5;
    engine.RunCommand(&macro);
    EXPECT_EQ(Count("SendBegin"), 2);
    EXPECT_EQ(Count("Trigger"), 1);
}

TEST_F(DataAcqEngineMacroTest, WithoutFlagsFailuresAreIgnored) {
    const ADXObject unknown;
    AddNode(macro, unknown);
    AddNode(macro, trigger);
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "Trigger", "MacroEnd 0"}));
}

TEST_F(DataAcqEngineMacroTest, ABufferThatCannotBeHadIsAFailedNode) {
    poll.replysize = 0xFFFFFFFF;
    AddNode(macro, poll, 1, 1);
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "MacroEnd 11"}));
}

TEST_F(DataAcqEngineMacroTest, TheEndSeesTheCodeOfTheLastNode) {
    poll.replysize = 60;
    AddNode(macro, poll);
    EXPECT_EQ(LastOf(macro), "MacroEnd 6");
    EXPECT_EQ(callback.last.command, &poll);  // one record is shared by all
    EXPECT_EQ(callback.last.commandId, poll.GetIdHash());
}

TEST_F(DataAcqEngineMacroTest, AnEndResultReplacesEveryOther) {
    AddNode(macro, poll, 1, 1);
    callback.answers["SendEnd"] = -5;
    callback.answers["MacroEnd"] = 4;
    EXPECT_EQ(engine.RunCommand(&macro), 4);
}

TEST_F(DataAcqEngineMacroTest, AStopBetweenNodesEndsIt) {
    AddNode(macro, trigger, 5);
    StopAtTrigger(1);
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "Trigger", "MacroEnd 2"}));
    EXPECT_EQ(engine.stopRequested, 1U);
}

TEST_F(DataAcqEngineMacroTest, AStopThatASendSawEndsItToo) {
    AddNode(macro, poll);
    AddNode(macro, trigger);
    line.onWrite = [this] { engine.RequestStop(); };
    EXPECT_EQ(WordsOf(macro), (Words{"MacroBegin", "SendBegin", "SendEnd 2 3", "MacroEnd 2"}));
}

TEST_F(DataAcqEngineMacroTest, AStopStaysForTheEnclosingMacroToo) {
    ADXMacro outer;
    AddNode(macro, trigger, 2);
    AddNode(outer, macro, 2);
    StopAtTrigger(1);
    EXPECT_EQ(WordsOf(outer), (Words{"MacroBegin", "MacroBegin", "Trigger", "MacroEnd 2", "MacroEnd 2"}));
}

TEST_F(DataAcqEngineMacroTest, AStopDuringBillionsOfRoundsEndsThem) {
    AddNode(macro, trigger);
    macro.repeatcount = 0xFFFFFFFF;
    StopAtTrigger(100);
    engine.RunCommand(&macro);
    EXPECT_EQ(Count("Trigger"), 100);
}

TEST_F(DataAcqEngineMacroTest, MacrosNestAsDeepAsTheLimitAllows) {
    std::vector<std::unique_ptr<ADXMacro>> chain;
    const ADXObject* inner = &trigger;
    for (std::uint32_t i = 0; i < DataAcqEngine::kNestingLimit; ++i) {
        chain.push_back(std::make_unique<ADXMacro>());
        AddNode(*chain.back(), *inner);
        inner = chain.back().get();
    }
    EXPECT_EQ(engine.RunCommand(inner), 0);
    EXPECT_EQ(Count("MacroEnd 0"), 256);
    EXPECT_EQ(Count("Trigger"), 1);
    // One more is too deep.
    AddNode(macro, *inner);
    AddNode(macro, trigger);
    callback.words.clear();
    EXPECT_EQ(engine.RunCommand(&macro), kResultFail);
    EXPECT_EQ(Count("MacroBegin"), 256);
    EXPECT_EQ(Count("MacroEnd 11"), 256);
    EXPECT_EQ(Count("Trigger"), 0);
}

// Twice over, which would be two to the 256th runs if each level went on.
TEST_F(DataAcqEngineMacroTest, AMacroThatHoldsItselfEndsWithAFailure) {
    AddNode(macro, macro, 1000);
    AddNode(macro, macro);
    EXPECT_EQ(engine.RunCommand(&macro), kResultFail);
    EXPECT_EQ(Count("MacroBegin"), 256);
    EXPECT_EQ(Count("MacroEnd 11"), 256);
    // The engine has nothing left of it.
    ADXMacro sound;
    AddNode(sound, trigger);
    EXPECT_EQ(engine.RunCommand(&sound), 0);
}

}  // namespace
}  // namespace corvex::test
