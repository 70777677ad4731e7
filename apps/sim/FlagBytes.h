// The bytes of a packet in which a flag lies, and what they hold when it is set and when it is not.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace corvex {

class ADXBitmask;

struct FlagBytes {
    std::uint32_t offset = 0, count = 0;
    std::array<std::uint8_t, 4> mask{}, set{}, clear{};  // in packet order

    // Nothing for a mask that is always set, or never, or has no bytes, or does not lie inside the first `room` bytes.
    static std::optional<FlagBytes> Of(const ADXBitmask& bitmask, std::size_t room);

    void Put(std::span<std::uint8_t> packet, bool isSet) const;
    // Whether they have bits in common.
    bool Share(const FlagBytes& other) const;
    // Whether one of the bytes told has bits of the mask.
    bool Touches(const std::vector<bool>& bytes) const;
};

}  // namespace corvex
