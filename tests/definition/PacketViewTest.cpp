#include <gtest/gtest.h>

#include "definition/PacketView.h"

namespace corvex {
namespace {

constexpr std::uint8_t kPacketBytes[4] = {1, 2, 3, 4};

TEST(PacketView, GivesFieldsThatAreWhollyInside) {
    const std::uint8_t* none = nullptr;
    const struct {
        PacketView packet;
        std::uint32_t offset, size;
        const std::uint8_t* field;
    } cases[] = {
        {{kPacketBytes, 4}, 0, 4, kPacketBytes},
        {{kPacketBytes, 4}, 3, 1, kPacketBytes + 3},
        {{kPacketBytes, 4}, 3, 2, nullptr},
        {{kPacketBytes, 4}, 4, 1, nullptr},
        {{kPacketBytes, 4}, 0xFFFFFFFF, 1, nullptr},
        {{kPacketBytes, 4}, 1, 0xFFFFFFFF, nullptr},
        {kPacketBytes, 2, 2, kPacketBytes + 2},  // a bare pointer is trusted
        {{none, 10}, 0, 1, nullptr},
        {none, 0, 0, nullptr},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(one.packet.Field(one.offset, one.size), one.field) << one.offset << ", " << one.size;
        EXPECT_EQ(static_cast<bool>(one.packet), one.packet.Bytes() != nullptr);
    }
    EXPECT_FALSE(PacketView(nullptr));
    EXPECT_FALSE(PacketView(none, 10));
    EXPECT_TRUE(PacketView(kPacketBytes));
}

}  // namespace
}  // namespace corvex
