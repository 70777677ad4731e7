#include <gtest/gtest.h>

#include <vector>

#include "session/LastPacket.h"
#include "tests/support/Listed.h"

namespace corvex::test {
namespace {

TEST(LastPacketTest, KeepsTheBytesWithZerosBehindAndNoneOfNoPacket) {
    const std::uint8_t bytes[] = {1, 2, 3};
    const LastPacket last = LastPacket::Of(PacketView(bytes, 3), 0x1234), none = LastPacket::Of(nullptr, 5);
    EXPECT_EQ(Listed(3, 0x1234, 3, 0, 3),
              Listed(last.size, last.command, last.bytes[2], last.bytes[3], last.View().Size()));
    EXPECT_EQ(Listed(0, 5, true), Listed(none.size, none.command, static_cast<bool>(none.View())));
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
