// Puts a raw word into a packet: the way back of ReadField.
#pragma once

#include <cstdint>

namespace corvex {

// Whole bytes that the field takes in the packet.
constexpr std::uint32_t FieldBytes(std::uint32_t sizeinbits) {
    return sizeinbits / 8;
}

// Writes FieldBytes(sizeinbits) bytes, 1 to 4 of them, so that ReadField with the same arguments gives the low bits of
// `word` back.
void WriteField(std::uint8_t* field, std::uint32_t word, std::uint32_t sizeinbits, bool lowByteFirst);

}  // namespace corvex
