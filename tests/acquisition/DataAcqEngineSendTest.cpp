#include "tests/acquisition/EngineTestHelper.h"

namespace corvex::test {
namespace {

class DataAcqEngineSendTest : public EngineTest {
protected:
    DataAcqEngineSendTest() {
        Open();
        MakePoll(command);
    }

    ADXCSendCommand command;
};

TEST_F(DataAcqEngineSendTest, SendsAndTakesTheReply) {
    line.Answer({1, 2, 3}, {10, 20, 30, 40, 50}, 4, 1);
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(line.Calls(), (Words{"timeouts 75 0 50 0 300", "purge 1 1", "write 1 2 3", "read 1 -> 1", "read 1 -> 1",
                                   "read 1 -> 1", "read 1 -> 1", "read 1 -> 1"}));
    EXPECT_EQ(Told(), "75 0 200 0 300");
    EXPECT_EQ(callback.words, (Words{"SendBegin", "SendEnd 0 5"}));
    EXPECT_EQ(callback.bytes, (Bytes{10, 20, 30, 40, 50}));
    EXPECT_EQ(callback.last.command, &command);
    EXPECT_EQ(callback.last.commandId, command.GetIdHash());
    EXPECT_EQ(callback.last.source, 0U);
}

TEST_F(DataAcqEngineSendTest, ARefusedBeginningTouchesNothing) {
    callback.answers["SendBegin"] = -9;
    EXPECT_EQ(engine.RunCommand(&command), -9);
    EXPECT_EQ(callback.words, (Words{"SendBegin"}));
    EXPECT_EQ(line.Calls(), Words{});
    EXPECT_EQ(engine.RunSendCommand(nullptr), kResultFail);
    callback.answers["SendBegin"] = 1;
    line.Answer({1, 2, 3}, {1, 2, 3, 4, 5});
    EXPECT_EQ(LastOf(command), "SendEnd 0 5") << "a positive answer refuses nothing";
}

struct ReplyCase {
    const char* behaviour;
    bool echo;
    Bytes sent, came;
    std::uint32_t replysize;
    const char* end;
    Bytes bytes;
    std::size_t reads;
};

const ReplyCase kReplies[] = {
    {"AShortReplyKeepsItsCount", false, {1, 2, 3}, {10, 20}, 5, "SendEnd 6 2", {10, 20}, 4},
    {"AnEmptyReplyIsAReply", false, {1, 2, 3}, {}, 0, "SendEnd 0 0", {}, 1},
    {"WithoutBytesItOnlyListens", false, {}, {5, 4, 3, 2, 1}, 5, "SendEnd 0 5", {5, 4, 3, 2, 1}, 5},
    {"TheEchoIsReadAndNotCompared", true, {1, 2, 3}, {99, 98, 97, 1, 2, 3, 4, 5}, 5, "SendEnd 0 5", {1, 2, 3, 4, 5}, 8},
    {"TheEchoAloneIsAShortReply", true, {1, 2, 3}, {1, 2, 3}, 5, "SendEnd 6 0", {}, 7},
    {"AShortEchoEndsTheCommandWithItsCount", true, {1, 2, 3}, {1, 2}, 5, "SendEnd 6 2", {0, 0}, 4},
    {"NoEchoIsExpectedOfNothing", true, {}, {1, 2, 3, 4, 5}, 5, "SendEnd 0 5", {1, 2, 3, 4, 5}, 5},
};

class DataAcqEngineReply : public DataAcqEngineSendTest, public testing::WithParamInterface<ReplyCase> {};

TEST_P(DataAcqEngineReply, EndsAsTold) {
    engine.flags = GetParam().echo ? std::uint32_t{DataAcqEngine::kEcho} : 0U;
    GiveBytes(command, GetParam().sent);
    command.replysize = GetParam().replysize;
    if (GetParam().sent.empty()) {
        line.Feed(GetParam().came, 10);
    } else {
        line.Answer(GetParam().sent, GetParam().came);
    }
    EXPECT_EQ(WordsOf(command), (Words{"SendBegin", GetParam().end})) << "neither OnWrite nor OnRead is ever called";
    EXPECT_EQ(callback.bytes, GetParam().bytes);
    EXPECT_FALSE(callback.gotNull);
    EXPECT_EQ(line.Calls("read").size(), GetParam().reads);
    EXPECT_EQ(line.Calls("write").empty(), GetParam().sent.empty());
}

INSTANTIATE_TEST_SUITE_P(All, DataAcqEngineReply, testing::ValuesIn(kReplies),
                         [](const auto& info) { return std::string(info.param.behaviour); });

TEST_F(DataAcqEngineSendTest, SilenceIsAShortReplyAfterTheTimeout) {
    command.replytimeout = 123;
    EXPECT_EQ(LastOf(command), "SendEnd 6 0");
    EXPECT_EQ(clock.PeekMilliseconds(), 123.0);
}

TEST_F(DataAcqEngineSendTest, AGapOfMoreThan75MsEndsTheReply) {
    command.replytimeout = 1000;
    line.Answer({1, 2, 3}, {1, 2, 3, 4, 5}, 0, 75);
    EXPECT_EQ(LastOf(command), "SendEnd 0 5");
    line.ForgetCalls();
    line.Answer({9}, {1, 2, 3, 4, 5}, 0, 76);
    GiveBytes(command, {9});
    EXPECT_EQ(LastOf(command), "SendEnd 6 1");
}

TEST_F(DataAcqEngineSendTest, ExtraBytesWaitForTheNextPurge) {
    line.Answer({1, 2, 3}, {1, 2, 3, 4, 5, 6, 7});
    engine.RunCommand(&command);
    EXPECT_EQ(callback.bytes, (Bytes{1, 2, 3, 4, 5}));
    engine.RunCommand(&command);
    EXPECT_EQ(callback.bytes, (Bytes{1, 2, 3, 4, 5}));
}

TEST_F(DataAcqEngineSendTest, AShortWriteEndsTheCommand) {
    line.writeLimit = 2;
    EXPECT_EQ(LastOf(command), "SendEnd 5 2");
    EXPECT_EQ(callback.bytes, (Bytes{0, 0}));  // the reply buffer, untouched
    line.Vanish();
    EXPECT_EQ(LastOf(command), "SendEnd 5 0");
    EXPECT_EQ(line.Calls("read"), Words{});
    callback.answers["SendEnd"] = -77;
    EXPECT_EQ(engine.RunCommand(&command), -77);
}

TEST_F(DataAcqEngineSendTest, WithoutTheReplyFlagTheCountIsThatOfTheBytesSent) {
    command.flags = 0xFFFFFFFE;
    command.replysize = 0;
    EXPECT_EQ(LastOf(command), "SendEnd 0 3");
    EXPECT_EQ(callback.bytes, (Bytes{0, 0, 0}));  // the recorder reads all three: they must be there
    EXPECT_EQ(line.Calls("read"), Words{});
}

TEST_F(DataAcqEngineSendTest, AStopAfterTheWriteReadsNothing) {
    line.onWrite = [this] { engine.RequestStop(); };
    EXPECT_EQ(LastOf(command), "SendEnd 2 3");
    EXPECT_EQ(line.Calls("read"), Words{});
}

TEST_F(DataAcqEngineSendTest, AReplyThatHasComeIsAReplyInSpiteOfAStop) {
    line.Answer({1, 2, 3}, {1, 2, 3, 4, 5});
    line.onRead = [this](std::uint32_t) { engine.RequestStop(); };
    EXPECT_EQ(LastOf(command), "SendEnd 0 5");
}

TEST_F(DataAcqEngineSendTest, AStopCutsTheWaitForAReplyOrAnEcho) {
    command.replytimeout = 3'600'000;
    line.onRead = [this](std::uint32_t) { engine.RequestStop(); };
    line.Answer({1, 2, 3}, {1}, 10);
    for (const std::uint32_t flags : {0U, std::uint32_t{DataAcqEngine::kEcho}}) {
        engine.ForgetStop();
        engine.flags = flags;
        const double began = clock.PeekMilliseconds();
        engine.RunCommand(&command);
        EXPECT_EQ(callback.words.back(), "SendEnd 2 1");
        EXPECT_EQ(clock.PeekMilliseconds() - began, 60.0);  // the byte after 10 ms and one slice
    }
}

// The timeouts were over when the stop was seen: the reply did come short.
TEST_F(DataAcqEngineSendTest, AStopInTheLastSliceMakesNoOtherCode) {
    command.replytimeout = 100;
    StopAtRead(2);
    EXPECT_EQ(LastOf(command), "SendEnd 6 0");
}

TEST_F(DataAcqEngineSendTest, AnAbsurdReplyCannotBeHad) {
    command.replysize = 0xFFFFFFFF;
    EXPECT_EQ(engine.RunCommand(&command), kResultNoMemory);
    command.replysize = DataAcqEngine::kBufferLimit + 1;
    EXPECT_EQ(engine.RunCommand(&command), kResultNoMemory);
    EXPECT_EQ(callback.words, Words{});
    command.replysize = DataAcqEngine::kBufferLimit;
    EXPECT_EQ(LastOf(command), "SendEnd 6 0");
}

}  // namespace
}  // namespace corvex::test
