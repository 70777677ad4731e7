// The newest packet of a session, as those see it who read it at their leisure.
#pragma once

#include <array>
#include <cstdint>

#include "definition/PacketView.h"

namespace corvex {

struct LastPacket {
    static constexpr std::uint32_t kSize = 300;

    // The packet made of what there is of it: at most kSize bytes, zeros behind. A null or empty view gives an empty
    // packet.
    static LastPacket Of(PacketView packet, std::uint32_t command);

    PacketView View() const { return {bytes.data(), size}; }

    std::array<std::uint8_t, kSize> bytes{};
    std::uint32_t size = 0;     // bytes kept, so a field outside is known to be absent
    std::uint32_t command = 0;  // id hash of the command that brought it
};

}  // namespace corvex
