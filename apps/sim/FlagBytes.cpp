#include "apps/sim/FlagBytes.h"

#include <algorithm>

#include "apps/sim/FieldWriter.h"
#include "definition/ADXBitmask.h"

namespace corvex {

namespace {

constexpr std::uint32_t LowestBit(std::uint32_t word) {
    return word & (0U - word);
}

}  // namespace

std::optional<FlagBytes> FlagBytes::Of(const ADXBitmask& bitmask, std::size_t room) {
    FlagBytes bytes;
    bytes.offset = bitmask.packetoffset;
    bytes.count = FieldBytes(bitmask.sizeinbits);
    if (bytes.count < 1 || bytes.count > 4 || std::uint64_t{bytes.offset} + bytes.count > room) return std::nullopt;
    const std::uint32_t all = bytes.count == 4 ? 0xFFFFFFFFU : (1U << (8 * bytes.count)) - 1;
    std::uint32_t mask = 0, set = 0, clear = 0;
    if (bitmask.bitop == ADXBitmask::kAnd) {
        mask = bitmask.operand & all;
        set = bitmask.result;
        if (mask == 0 || (bitmask.result & ~mask) != 0) return std::nullopt;
        clear = set ^ LowestBit(mask);
    } else if (bitmask.bitop == ADXBitmask::kXor) {
        mask = all;
        set = bitmask.operand ^ bitmask.result;
        if ((set & ~all) != 0) return std::nullopt;
        clear = set ^ LowestBit((bitmask.operand & all) != 0 ? bitmask.operand & all : 1U);
    } else {
        return std::nullopt;
    }
    const bool lowByteFirst = bitmask.IsLowByteFirst();
    WriteField(bytes.mask.data(), mask, bitmask.sizeinbits, lowByteFirst);
    WriteField(bytes.set.data(), set, bitmask.sizeinbits, lowByteFirst);
    WriteField(bytes.clear.data(), clear, bitmask.sizeinbits, lowByteFirst);
    return bytes;
}

void FlagBytes::Put(std::span<std::uint8_t> packet, bool isSet) const {
    const auto& word = isSet ? set : clear;
    for (std::uint32_t i = 0; i < count; ++i) {
        std::uint8_t& byte = packet[offset + i];
        byte = static_cast<std::uint8_t>((byte & ~mask[i]) | (word[i] & mask[i]));
    }
}

bool FlagBytes::Share(const FlagBytes& other) const {
    const std::uint32_t first = std::max(offset, other.offset);
    const std::uint32_t past = std::min(offset + count, other.offset + other.count);
    for (std::uint32_t i = first; i < past; ++i) {
        if ((mask[i - offset] & other.mask[i - other.offset]) != 0) return true;
    }
    return false;
}

bool FlagBytes::Touches(const std::vector<bool>& bytes) const {
    for (std::uint32_t i = 0; i < count; ++i) {
        if (mask[i] != 0 && bytes[offset + i]) return true;
    }
    return false;
}

}  // namespace corvex
