#include <gtest/gtest.h>

#include "definition/ADXCSendCommand.h"

namespace corvex {
namespace {

TEST(ADXCSendCommand, CutsItsPacketToTheReplyAndLetsItemsReadToItsEnd) {
    ADXCSendCommand command;
    command.packetoffset = 3;
    const std::uint8_t reply[9] = {};
    const struct {
        std::uint32_t packetsize, bytes, packet, readable;
    } cases[] = {{1, 9, 1, 6}, {4, 9, 4, 6}, {4, 5, 2, 2}, {4, 2, 0, 0}, {0xFFFFFFFF, 9, 6, 6}};
    for (const auto& one : cases) {
        command.packetsize = one.packetsize;
        const PacketView whole(reply, one.bytes);
        EXPECT_EQ(command.Packet(whole).Size(), one.packet);
        EXPECT_EQ(command.ReadablePart(whole).Size(), one.readable);
        EXPECT_TRUE(command.Packet(whole) && command.ReadablePart(whole));
    }
    EXPECT_EQ(command.Packet({reply, 9}).Bytes(), reply + 3);
    EXPECT_EQ(command.ReadablePart({reply, 9}).Bytes(), reply + 3);
    command.packetoffset = 0xFFFFFFFF;
    EXPECT_EQ(command.Packet({reply, 9}).Size(), 0u);
    EXPECT_FALSE(command.Packet(nullptr) || command.ReadablePart(nullptr));
}

}  // namespace
}  // namespace corvex
