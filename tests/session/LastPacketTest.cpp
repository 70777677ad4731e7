#include <gtest/gtest.h>

#include <vector>

#include "session/LastPacket.h"

namespace corvex::test {
namespace {

TEST(LastPacketTest, KeepsTheBytesWithZerosBehindAndNoneOfNoPacket) {
    const std::uint8_t bytes[] = {1, 2, 3};
    const LastPacket last = LastPacket::Of(PacketView(bytes, 3), 0x1234);
    EXPECT_EQ(3U, last.size);
    EXPECT_EQ(0x1234U, last.command);
    EXPECT_EQ(3, last.bytes[2]);
    EXPECT_EQ(0, last.bytes[3]);
    EXPECT_EQ(3U, last.View().Size());
    const LastPacket none = LastPacket::Of(nullptr, 5);
    EXPECT_EQ(0U, none.size);
    EXPECT_EQ(5U, none.command);
    EXPECT_TRUE(static_cast<bool>(none.View()));
}

TEST(LastPacketTest, CutsAt300Bytes) {
    const std::vector<std::uint8_t> bytes(301, 7);
    EXPECT_EQ(300U, LastPacket::Of(PacketView(bytes.data(), 300), 0).size);
    const LastPacket last = LastPacket::Of(PacketView(bytes.data(), 301), 0);
    EXPECT_EQ(300U, last.size);
    EXPECT_EQ(7, last.bytes[299]);
}

}  // namespace
}  // namespace corvex::test
