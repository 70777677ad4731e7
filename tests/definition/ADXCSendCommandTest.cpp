#include <gtest/gtest.h>

#include "definition/ADXCSendCommand.h"

namespace corvex {
namespace {

TEST(ADXCSendCommand, LetsItemsReadToTheEndOfTheReply) {
    ADXCSendCommand command;
    command.packetoffset = 3;
    command.packetsize = 1;
    const std::uint8_t reply[9] = {};
    EXPECT_EQ(command.ReadablePart({reply, 9}).Bytes(), reply + 3);
    EXPECT_EQ(command.ReadablePart({reply, 9}).Size(), 6u);
    EXPECT_EQ(command.ReadablePart({reply, 2}).Size(), 0u);
    EXPECT_TRUE(command.ReadablePart({reply, 2}));
    EXPECT_FALSE(command.ReadablePart(nullptr));
}

TEST(ADXCSendCommand, CutsItsPacketToTheReply) {
    ADXCSendCommand command;
    command.packetoffset = 3;
    command.packetsize = 4;
    const std::uint8_t reply[9] = {};
    EXPECT_EQ(command.Packet({reply, 9}).Bytes(), reply + 3);
    EXPECT_EQ(command.Packet({reply, 9}).Size(), 4u);
    EXPECT_EQ(command.Packet({reply, 5}).Size(), 2u);
    EXPECT_EQ(command.Packet({reply, 2}).Size(), 0u);
    EXPECT_TRUE(command.Packet({reply, 2}));
    command.packetoffset = 0xFFFFFFFF;
    command.packetsize = 0xFFFFFFFF;
    EXPECT_EQ(command.Packet({reply, 9}).Size(), 0u);
    EXPECT_FALSE(command.Packet(nullptr));
}

}  // namespace
}  // namespace corvex
