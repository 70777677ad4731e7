#include "tests/acquisition/EngineTestHelper.h"

namespace corvex::test {
namespace {

constexpr std::uint8_t kOne = 0x00, kZero = 0xFE, kStart = 0xFE;

Bytes operator+(Bytes first, const Bytes& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Bytes Sync() {
    return Bytes(9, 0);
}

Bytes Framed(const Bytes& values) {
    Bytes received;
    for (const unsigned value : values) {
        received.push_back(kStart);
        for (unsigned bit = 0x80; bit != 0; bit >>= 1U)
            received.push_back((value & bit) != 0 ? kOne : kZero);
    }
    return received;
}

class Listen160BaudTest : public EngineTest {
protected:
    Listen160BaudTest() {
        Open();
        command.packetsize = 3;
    }

    ADXC160BaudListen command;
};

TEST_F(Listen160BaudTest, DecodesAPacket) {
    line.Feed(Sync() + Framed({0x00, 0xA5, 0xFF}));
    EXPECT_EQ(WordsOf(command), (Words{"160Begin", "160End 0 3"}));
    EXPECT_EQ(callback.bytes, (Bytes{0x00, 0xA5, 0xFF}));
    EXPECT_EQ(callback.last.command, &command);
    EXPECT_EQ(line.Calls("timeouts"), Words{});
    EXPECT_EQ(line.Calls("purge"), Words{});
    EXPECT_EQ(line.Calls("read").size(), 9U + 3U * 9U);
}

TEST_F(Listen160BaudTest, TheMostSignificantBitComesFirst) {
    command.packetsize = 1;
    line.Feed(Sync() +
              Bytes{kStart, kOne, kZero, kZero, kZero, kZero, kZero, 0x01, kOne});  // any byte but 0 is a 0 bit
    engine.RunCommand(&command);
    EXPECT_EQ(callback.bytes, (Bytes{0x81}));
}

struct StreamCase {
    const char* behaviour;
    Bytes stream;
    const char* end;
    Bytes bytes;
    std::size_t reads;
};

const StreamCase kStreams[] = {
    {"TheSyncNeedsNineZerosInARow",
     Bytes(8, 0) + Bytes{kZero} + Sync() + Framed({1, 2, 3}),
     "160End 0 3",
     {1, 2, 3},
     45},
    {"TheLastReadOfTheSearchMayFindTheSync",
     Bytes(54 - 9, kZero) + Sync() + Framed({1, 2, 3}),
     "160End 0 3",
     {1, 2, 3},
     81},
    {"TheSearchEndsAfter18ReadsForEachByte", Bytes(54 - 8, kZero) + Sync(), "160End 8 3", {0, 0, 0}, 54},
    // The ninth read waits for two seconds, in slices.
    {"AReadOfNothingFailsTheSearch", Bytes(8, 0), "160End 8 3", {0, 0, 0}, 8 + 40},
    {"OneByteWithoutAStartBitStillDeliversTheWholePacket",
     Sync() + Framed({0x11}) + Bytes(1, 0) + Bytes(8, kOne) + Framed({0x33}),
     "160End 7 3",
     {0x11, 0, 0x33},
     36},
    {"AShortByteIsABadOne",
     Sync() + Framed({0x11, 0x22}) + Bytes{kStart, kOne, kOne},
     "160End 7 3",
     {0x11, 0x22, 0},
     36},
};

class Listen160BaudStream : public Listen160BaudTest, public testing::WithParamInterface<StreamCase> {};

TEST_P(Listen160BaudStream, EndsAsTold) {
    line.Feed(GetParam().stream);
    EXPECT_EQ(LastOf(command), GetParam().end);
    EXPECT_EQ(callback.bytes, GetParam().bytes);
    EXPECT_EQ(line.Calls("read").size(), GetParam().reads);
}

INSTANTIATE_TEST_SUITE_P(All, Listen160BaudStream, testing::ValuesIn(kStreams),
                         [](const auto& info) { return std::string(info.param.behaviour); });

TEST_F(Listen160BaudTest, ARefusedBeginningStillHasAnEnd) {
    callback.answers["160Begin"] = -3;
    callback.answers["160End"] = -8;
    EXPECT_EQ(engine.RunCommand(&command), -8);
    EXPECT_EQ(callback.words, (Words{"160Begin", "160End 1 3"}));
    EXPECT_TRUE(callback.gotNull);
    EXPECT_EQ(line.Calls("read"), Words{});
}

TEST_F(Listen160BaudTest, AnEmptyPacketHasAnEndAloneAndItsResult) {
    command.packetsize = 0;
    EXPECT_EQ(WordsOf(command), (Words{"160End 0 0"}));
    EXPECT_TRUE(callback.gotNull);
    callback.answers["160End"] = 12;
    EXPECT_EQ(engine.Run160BaudListen(nullptr), 12);
    EXPECT_EQ(callback.last.command, nullptr);
}

TEST_F(Listen160BaudTest, AStopEndsTheSearch) {
    line.Feed(Bytes(60, kZero));
    StopAtRead(5);
    EXPECT_EQ(LastOf(command), "160End 2 3");
    EXPECT_EQ(line.Calls("read").size(), 5U);
}

TEST_F(Listen160BaudTest, AStopBetweenBytesDeliversWhatCame) {
    line.Feed(Sync() + Framed({0x11, 0x22, 0x33}));
    StopAtRead(9 + 9 + 1);
    EXPECT_EQ(LastOf(command), "160End 2 3");
    EXPECT_EQ(callback.bytes, (Bytes{0x11, 0x22, 0}));
}

TEST_F(Listen160BaudTest, AnAbsurdPacketCannotBeHad) {
    command.packetsize = 0xFFFFFFFF;
    EXPECT_EQ(engine.RunCommand(&command), kResultNoMemory);
    EXPECT_EQ(callback.words, (Words{"160Begin"}));
}

TEST_F(Listen160BaudTest, TheIdOfTheLastSendStays) {
    ADXCSendCommand poll;
    MakePoll(poll);
    engine.RunCommand(&poll);
    engine.RunCommand(&command);
    EXPECT_EQ(callback.last.commandId, poll.GetIdHash());
    EXPECT_NE(callback.last.commandId, 0U);
    // The timeouts too are those of the send.
    EXPECT_EQ(Told(), "75 0 200 0 300");
}

TEST_F(Listen160BaudTest, ADeviceThatVanishesEndsThePacket) {
    command.packetsize = 1000;
    line.Feed(Sync() + Framed({0xA5}));
    line.onRead = [this](std::uint32_t number) {
        if (number > 9 + 9) line.Vanish();
    };
    EXPECT_EQ(LastOf(command), "160End 7 1000");
    EXPECT_EQ(callback.bytes.front(), 0xA5);
    EXPECT_EQ(clock.PeekMilliseconds(), 50.0);
}

}  // namespace
}  // namespace corvex::test
