#include <gtest/gtest.h>

#include "definition/PacketView.h"

namespace corvex {
namespace {

constexpr std::uint8_t kPacketBytes[4] = {1, 2, 3, 4};

TEST(PacketView, IsNoPacketWhenNull) {
    EXPECT_FALSE(PacketView(nullptr));
    const std::uint8_t* null = nullptr;
    EXPECT_FALSE(PacketView(null, 10));
    EXPECT_EQ(PacketView(null, 10).Field(0, 1), nullptr);
    EXPECT_EQ(PacketView(null).Field(0, 0), nullptr);
}

TEST(PacketView, GivesFieldsThatAreWhollyInside) {
    const PacketView packet(kPacketBytes, 4);
    EXPECT_EQ(packet.Field(0, 4), kPacketBytes);
    EXPECT_EQ(packet.Field(3, 1), kPacketBytes + 3);
    EXPECT_EQ(packet.Field(3, 2), nullptr);
    EXPECT_EQ(packet.Field(4, 1), nullptr);
    EXPECT_EQ(packet.Field(0xFFFFFFFF, 1), nullptr);
    EXPECT_EQ(packet.Field(1, 0xFFFFFFFF), nullptr);
}

TEST(PacketView, TrustsABarePointer) {
    const PacketView packet(kPacketBytes);
    EXPECT_TRUE(packet);
    EXPECT_EQ(packet.Field(2, 2), kPacketBytes + 2);
}

}  // namespace
}  // namespace corvex
