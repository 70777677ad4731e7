#include "session/LastPacket.h"

#include <algorithm>

namespace corvex {

LastPacket LastPacket::Of(PacketView packet, std::uint32_t command) {
    LastPacket kept;
    kept.size = std::min(packet.Size(), kSize);
    kept.command = command;
    if (packet) std::copy_n(packet.Bytes(), kept.size, kept.bytes.begin());
    return kept;
}

}  // namespace corvex
