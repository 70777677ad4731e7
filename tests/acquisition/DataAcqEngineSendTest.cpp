#include "tests/acquisition/EngineTestHelper.h"

namespace corvex {

using test::Bytes;
using test::EngineTest;
using test::Words;

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

TEST_F(DataAcqEngineSendTest, TheEndCallbackGivesTheResult) {
    callback.answers["SendEnd"] = -77;
    EXPECT_EQ(engine.RunCommand(&command), -77);
    callback.answers["SendEnd"] = 3;
    EXPECT_EQ(engine.RunCommand(&command), 3);
}

TEST_F(DataAcqEngineSendTest, ARefusedBeginningTouchesNothing) {
    callback.answers["SendBegin"] = -9;
    EXPECT_EQ(engine.RunCommand(&command), -9);
    EXPECT_EQ(callback.words, (Words{"SendBegin"}));
    EXPECT_EQ(line.Calls(), Words{});
}

TEST_F(DataAcqEngineSendTest, APositiveBeginningGoesOn) {
    callback.answers["SendBegin"] = 1;
    line.Answer({1, 2, 3}, {1, 2, 3, 4, 5});
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SendEnd 0 5");
}

TEST_F(DataAcqEngineSendTest, AShortReplyKeepsItsCount) {
    line.Answer({1, 2, 3}, {10, 20});
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SendEnd 6 2");
    EXPECT_EQ(callback.bytes, (Bytes{10, 20}));
}

TEST_F(DataAcqEngineSendTest, SilenceIsAShortReplyAfterTheTimeout) {
    command.replytimeout = 123;
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SendEnd 6 0");
    EXPECT_EQ(clock.PeekMilliseconds(), 123.0);
}

TEST_F(DataAcqEngineSendTest, AGapOfMoreThan75MsEndsTheReply) {
    command.replytimeout = 1000;
    line.Answer({1, 2, 3}, {1, 2, 3, 4, 5}, 0, 75);
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "SendEnd 0 5");
    line.ForgetCalls();
    line.Answer({9}, {1, 2, 3, 4, 5}, 0, 76);
    GiveBytes(command, {9});
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "SendEnd 6 1");
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
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SendEnd 5 2");
    EXPECT_EQ(line.Calls("read"), Words{});
    EXPECT_EQ(callback.bytes, (Bytes{0, 0}));  // the reply buffer, untouched
}

TEST_F(DataAcqEngineSendTest, WithoutBytesItOnlyListens) {
    GiveBytes(command, {});
    line.Feed({5, 4, 3, 2, 1}, 10);
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(line.Calls("write"), Words{});
    EXPECT_EQ(callback.words.back(), "SendEnd 0 5");
    EXPECT_EQ(callback.bytes, (Bytes{5, 4, 3, 2, 1}));
}

TEST_F(DataAcqEngineSendTest, AnEmptyReplyIsAReply) {
    command.replysize = 0;
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SendEnd 0 0");
    EXPECT_FALSE(callback.gotNull);
    EXPECT_EQ(line.Calls("read"), (Words{"read 0 -> 0"}));
}

TEST_F(DataAcqEngineSendTest, WithoutTheReplyFlagTheCountIsThatOfTheBytesSent) {
    command.flags = 0xFFFFFFFE;
    command.replysize = 0;
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SendEnd 0 3");
    EXPECT_EQ(callback.bytes, (Bytes{0, 0, 0}));  // the recorder reads all three: they must be there
    EXPECT_EQ(line.Calls("read"), Words{});
}

TEST_F(DataAcqEngineSendTest, AStopAfterTheWriteReadsNothing) {
    line.onWrite = [this] { engine.RequestStop(); };
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SendEnd 2 3");
    EXPECT_EQ(line.Calls("read"), Words{});
}

TEST_F(DataAcqEngineSendTest, AReplyThatHasComeIsAReplyInSpiteOfAStop) {
    line.Answer({1, 2, 3}, {1, 2, 3, 4, 5});
    line.onRead = [this](std::uint32_t) { engine.RequestStop(); };
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "SendEnd 0 5");
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
    line.onRead = [this](std::uint32_t number) {
        if (number == 2) engine.RequestStop();
    };
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "SendEnd 6 0");
}

TEST_F(DataAcqEngineSendTest, TheEchoIsReadAndNotCompared) {
    engine.flags = DataAcqEngine::kEcho;
    line.Answer({1, 2, 3}, {99, 98, 97, 1, 2, 3, 4, 5});
    engine.RunCommand(&command);
    EXPECT_EQ(line.Calls("read"), Reads(3 + 5));
    EXPECT_EQ(callback.words.back(), "SendEnd 0 5");
    EXPECT_EQ(callback.bytes, (Bytes{1, 2, 3, 4, 5}));
}

TEST_F(DataAcqEngineSendTest, TheEchoAloneIsAShortReply) {
    engine.flags = DataAcqEngine::kEcho;
    line.Answer({1, 2, 3}, {1, 2, 3});
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "SendEnd 6 0");
}

TEST_F(DataAcqEngineSendTest, AShortEchoEndsTheCommandWithItsCount) {
    engine.flags = DataAcqEngine::kEcho;
    line.Answer({1, 2, 3}, {1, 2});
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "SendEnd 6 2");
    EXPECT_EQ(line.Calls("read"), (Words{"read 1 -> 1", "read 1 -> 1", "read 1 -> 0", "read 1 -> 0"}));
    EXPECT_EQ(callback.bytes, (Bytes{0, 0}));
}

TEST_F(DataAcqEngineSendTest, NoEchoIsExpectedOfNothing) {
    engine.flags = DataAcqEngine::kEcho;
    GiveBytes(command, {});
    line.Feed({1, 2, 3, 4, 5}, 10);
    engine.RunCommand(&command);
    EXPECT_EQ(line.Calls("read"), Reads(5));
}

TEST_F(DataAcqEngineSendTest, AnAbsurdReplyCannotBeHad) {
    command.replysize = 0xFFFFFFFF;
    EXPECT_EQ(engine.RunCommand(&command), kResultNoMemory);
    command.replysize = DataAcqEngine::kBufferLimit + 1;
    EXPECT_EQ(engine.RunCommand(&command), kResultNoMemory);
    EXPECT_EQ(callback.words, Words{});
    command.replysize = DataAcqEngine::kBufferLimit;
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SendEnd 6 0");
}

TEST_F(DataAcqEngineSendTest, AVanishedDeviceIsAShortWrite) {
    line.Vanish();
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "SendEnd 5 0");
}

TEST_F(DataAcqEngineSendTest, ANullCommandIsABadArgument) {
    EXPECT_EQ(engine.RunSendCommand(nullptr), kResultFail);
}

TEST_F(DataAcqEngineSendTest, NeitherOnWriteNorOnReadIsEverCalled) {
    line.Answer({1, 2, 3}, {1, 2, 3, 4, 5});
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.size(), 2U);
}

}  // namespace

}  // namespace corvex
