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

// A node of a case: which command, how often, with which flags.
enum Node { kPoll, kTrigger, kUnknown, kEmpty };
struct MacroNode {
    Node node;
    std::uint32_t repeatcount = 1, flags = 0;
};

using MacroNodes = std::vector<MacroNode>;

struct MacroCase {
    const char* behaviour;
    MacroNodes nodes;
    const char* words;
    const char* refused = "";  // the callback that answers with a failure
    std::uint32_t replysize = 5, repeatcount = 1;
};

const MacroCase kMacros[] = {
    {"ItEnclosesTheCallbacksOfItsNodes", {{kPoll}}, "MacroBegin, SendBegin, SendEnd 0 5, MacroEnd 0"},
    {"NodesAreRepeated", {{kTrigger, 2}, {kPoll}}, "MacroBegin, Trigger, Trigger, SendBegin, SendEnd 0 5, MacroEnd 0"},
    {"AndTheWhole", {{kTrigger, 2}}, "MacroBegin, Trigger, Trigger, Trigger, Trigger, MacroEnd 0", "", 5, 2},
    {"ARepeatcountOfZeroRunsNothing", {{kTrigger}}, "MacroBegin, MacroEnd 0", "", 5, 0},
    {"CountZeroAndNoCommandArePassedOver", {{kTrigger, 0}, {kEmpty}, {kTrigger}}, "MacroBegin, Trigger, MacroEnd 0"},
    {"BillionsOfRoundsOverNoCommandEnd", MacroNodes(1000, {kEmpty}), "MacroBegin, MacroEnd 0", "", 5, 0xFFFFFFFF},
    {"AndOverNoneThatRuns", MacroNodes(1000, {kTrigger, 0}), "MacroBegin, MacroEnd 0", "", 5, 0xFFFFFFFF},
    {"WithoutNodesOnlyTheEndIsCalled", {}, "MacroEnd 0"},
    {"ARefusedBeginningGoesToTheEnd", {{kTrigger}}, "MacroBegin, MacroEnd 0", "MacroBegin"},
    {"Flag1EndsItWhenTheNodeFails",
     {{kPoll, 3, 1}, {kTrigger}},
     "MacroBegin, SendBegin, SendEnd 0 5, MacroEnd 11",
     "SendEnd"},
    {"AFailureOnTheLineIsNoFailureOfTheNode",
     {{kPoll, 1, 1}, {kTrigger}},
     "MacroBegin, SendBegin, SendEnd 6 5, Trigger, MacroEnd 0",
     "",
     60},
    {"Flag2EndsItWhenTheNodeSucceeds", {{kPoll, 3, 2}, {kTrigger}}, "MacroBegin, SendBegin, SendEnd 0 5, MacroEnd 10"},
    {"Flag2LetsAFailingNodePass",
     {{kPoll, 2, 2}, {kTrigger}},
     "MacroBegin, SendBegin, SendEnd 0 5, SendBegin, SendEnd 0 5, Trigger, MacroEnd 0",
     "SendEnd"},
    {"WithoutFlagsFailuresAreIgnored", {{kUnknown}, {kTrigger}}, "MacroBegin, Trigger, MacroEnd 0"},
    {"ABufferThatCannotBeHadIsAFailedNode", {{kPoll, 1, 1}}, "MacroBegin, MacroEnd 11", "", 0xFFFFFFFF},
    {"TheEndSeesTheCodeOfTheLastNode", {{kPoll}}, "MacroBegin, SendBegin, SendEnd 6 5, MacroEnd 6", "", 60},
};

class DataAcqEngineMacroCase : public DataAcqEngineMacroTest, public testing::WithParamInterface<MacroCase> {};

TEST_P(DataAcqEngineMacroCase, CallsAsTold) {
    const ADXObject unknown;
    poll.replysize = GetParam().replysize;
    macro.repeatcount = GetParam().repeatcount;
    callback.answers[GetParam().refused] = -5;
    for (const MacroNode& node : GetParam().nodes) {
        const ADXObject* const commands[] = {&poll, &trigger, &unknown, nullptr};
        const ADXMacroNode added{commands[node.node], "", node.flags, node.repeatcount};
        macro.AddNode(&added);
    }
    std::string words;
    for (const std::string& word : WordsOf(macro))
        words += (words.empty() ? "" : ", ") + word;
    EXPECT_EQ(words, GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(All, DataAcqEngineMacroCase, testing::ValuesIn(kMacros),
                         [](const auto& info) { return std::string(info.param.behaviour); });

TEST_F(DataAcqEngineMacroTest, TheResultOfItsEndReplacesEveryOther) {
    callback.answers["MacroEnd"] = -2;
    EXPECT_EQ(engine.RunMacro(nullptr), -2);
    EXPECT_EQ(callback.last.command, nullptr);
    AddNode(macro, poll, 1, 1);
    callback.answers["SendEnd"] = -5;
    callback.answers["MacroEnd"] = 4;
    EXPECT_EQ(engine.RunCommand(&macro), 4);
    EXPECT_EQ(callback.last.command, &poll);  // one record is shared by all
    EXPECT_EQ(callback.last.commandId, poll.GetIdHash());
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

// The rest could only fail, one by one; that is left to those who begin it anew.
TEST_F(DataAcqEngineMacroTest, ADeviceThatVanishesEndsItAndThoseAroundIt) {
    AddNode(macro, poll, 4'000'000'000U);
    ADXMacro outer;
    AddNode(outer, macro, 2);
    AddNode(outer, trigger);
    line.onWrite = [this, writes = 0]() mutable {
        if (++writes == 3) line.Vanish();
    };
    const Words words = WordsOf(outer);
    EXPECT_EQ(Words(words.end() - 3, words.end()), (Words{"SendEnd 5 0", "MacroEnd 5", "MacroEnd 5"}));
    EXPECT_EQ(Count("SendEnd 5 0"), 1);
    ADXMacro next;
    AddNode(next, poll, 2);
    EXPECT_EQ(WordsOf(next).size(), 6U);
}

}  // namespace
}  // namespace corvex::test
