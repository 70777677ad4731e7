#include "definition/RawWord.h"

#include "definition/FieldReader.h"

namespace corvex {

std::uint32_t RawWord::Take(const FieldPlace& field, PacketView packet, std::uint32_t offset, std::uint32_t options) {
    const std::uint32_t place = (options & kReadAtOffset) != 0 ? offset : field.packetoffset;
    const std::uint8_t* bytes = packet.Field(place, field.sizeinbits / 8);
    if (bytes == nullptr) return word_.load(std::memory_order_relaxed);
    const bool lowByteFirst = (options & kReadNoSwap) != 0 || (field.flags & kFlagLowByteFirst) != 0;
    const std::uint32_t word = ReadField(bytes, field.sizeinbits, lowByteFirst);
    word_.store(word, std::memory_order_relaxed);
    return word;
}

}  // namespace corvex
