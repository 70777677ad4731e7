#include "apps/sim/BitStream160.h"

namespace corvex {

std::vector<std::uint8_t> EncodeStreamPacket(std::span<const std::uint8_t> packet) {
    std::vector<std::uint8_t> bits;
    bits.reserve(1 + kSyncOnes + packet.size() * 9);
    bits.push_back(kStreamZero);
    bits.insert(bits.end(), kSyncOnes, kStreamOne);
    for (const std::uint8_t byte : packet) {
        bits.push_back(kStreamZero);
        for (int bit = 7; bit >= 0; --bit)
            bits.push_back((byte >> bit & 1) != 0 ? kStreamOne : kStreamZero);
    }
    return bits;
}

}  // namespace corvex
