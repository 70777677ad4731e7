#include "tests/acquisition/EngineTestHelper.h"

namespace corvex {

using test::Bytes;
using test::EngineTest;
using test::Words;

namespace {

constexpr std::uint8_t kOne = 0x00, kZero = 0xFE, kStart = 0xFE;

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
    void Feed(const Bytes& bytes) { line.Feed(bytes); }

    ADXC160BaudListen command;
};

TEST_F(Listen160BaudTest, DecodesAPacket) {
    Feed(Sync());
    Feed(Framed({0x00, 0xA5, 0xFF}));
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words, (Words{"160Begin", "160End 0 3"}));
    EXPECT_EQ(callback.bytes, (Bytes{0x00, 0xA5, 0xFF}));
    EXPECT_EQ(callback.last.command, &command);
    EXPECT_EQ(line.Calls("timeouts"), Words{});
    EXPECT_EQ(line.Calls("purge"), Words{});
    EXPECT_EQ(line.Calls("read").size(), 9U + 3U * 9U);
}

TEST_F(Listen160BaudTest, TheMostSignificantBitComesFirst) {
    command.packetsize = 1;
    Feed(Sync());
    Feed({kStart, kOne, kZero, kZero, kZero, kZero, kZero, 0x01, kOne});  // any byte but 0 is a 0 bit
    engine.RunCommand(&command);
    EXPECT_EQ(callback.bytes, (Bytes{0x81}));
}

TEST_F(Listen160BaudTest, TheSyncNeedsNineZerosInARow) {
    Feed(Bytes(8, 0));
    Feed({kZero});
    Feed(Sync());
    Feed(Framed({1, 2, 3}));
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "160End 0 3");
    EXPECT_EQ(callback.bytes, (Bytes{1, 2, 3}));
}

TEST_F(Listen160BaudTest, TheSearchEndsAfter18ReadsForEachByte) {
    Feed(Bytes(3 * 18 - 8, kZero));
    Feed(Sync());
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "160End 8 3");
    EXPECT_EQ(callback.bytes, (Bytes{0, 0, 0}));
    EXPECT_EQ(line.Calls("read").size(), 54U);
}

TEST_F(Listen160BaudTest, TheLastReadOfTheSearchMayFindTheSync) {
    Feed(Bytes(3 * 18 - 9, kZero));
    Feed(Sync());
    Feed(Framed({1, 2, 3}));
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "160End 0 3");
}

TEST_F(Listen160BaudTest, AReadOfNothingFailsTheSearch) {
    Feed(Bytes(8, 0));
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "160End 8 3");
}

TEST_F(Listen160BaudTest, OneBadByteStillDeliversTheWholePacket) {
    Feed(Sync());
    Feed(Framed({0x11}));
    Bytes bad = Framed({0xFF});
    bad[0] = 0;  // no start bit
    Feed(bad);
    Feed(Framed({0x33}));
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words.back(), "160End 7 3");
    EXPECT_EQ(callback.bytes, (Bytes{0x11, 0, 0x33}));
}

TEST_F(Listen160BaudTest, AShortByteIsABadOne) {
    Feed(Sync());
    Feed(Framed({0x11, 0x22}));
    Feed({kStart, kOne, kOne});
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "160End 7 3");
    EXPECT_EQ(callback.bytes, (Bytes{0x11, 0x22, 0}));
}

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
    EXPECT_EQ(engine.RunCommand(&command), 0);
    EXPECT_EQ(callback.words, (Words{"160End 0 0"}));
    EXPECT_TRUE(callback.gotNull);
    callback.answers["160End"] = 12;
    EXPECT_EQ(engine.Run160BaudListen(nullptr), 12);
    EXPECT_EQ(callback.last.command, nullptr);
}

TEST_F(Listen160BaudTest, AStopEndsTheSearch) {
    Feed(Bytes(60, kZero));
    line.onRead = [this](std::uint32_t number) {
        if (number == 5) engine.RequestStop();
    };
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "160End 2 3");
    EXPECT_EQ(line.Calls("read").size(), 5U);
}

TEST_F(Listen160BaudTest, AStopBetweenBytesDeliversWhatCame) {
    Feed(Sync());
    Feed(Framed({0x11, 0x22, 0x33}));
    line.onRead = [this](std::uint32_t number) {
        if (number == 9 + 9 + 1) engine.RequestStop();
    };
    engine.RunCommand(&command);
    EXPECT_EQ(callback.words.back(), "160End 2 3");
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

}  // namespace

}  // namespace corvex
