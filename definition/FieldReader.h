// Takes a field's bytes out of a packet; shared by values and bitmasks.
#pragma once

#include <cstdint>

namespace corvex {

// Options of the read operations.
enum ReadOption : std::uint32_t {
    kReadAtOffset = 0x1,     // the offset argument counts instead of packetoffset
    kReadNoSwap = 0x2,       // as if the field were flagged least significant byte first
    kReadBeforeTable = 0x4,  // stop before the lookup table: the result is the equation's output
};

// Flag of values and bitmasks: the field is least significant byte first.
inline constexpr std::uint32_t kFlagLowByteFirst = 0x2;

// Copies sizeinbits / 8 bytes from `field` into the low end of a word, swapped unless `lowByteFirst`. Fields of 2 and 4
// bytes are swapped; any other count stays in packet order. Fields over 32 bits are no legal definition: the word
// takes the first 4 bytes of the packet's order after the swap that their width calls for (8 bytes), and nothing is
// written past it. The packet is trusted to hold the field.
std::uint32_t ReadField(const std::uint8_t* field, std::uint32_t sizeinbits, bool lowByteFirst);

}  // namespace corvex
