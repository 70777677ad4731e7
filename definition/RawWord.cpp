#include "definition/RawWord.h"

namespace corvex {

namespace {

std::uint32_t PlaceOf(const FieldPlace& field, std::uint32_t offset, std::uint32_t options) {
    return (options & kReadAtOffset) != 0 ? offset : field.packetoffset;
}

}  // namespace

std::uint32_t RawWord::Take(const FieldPlace& field, PacketView packet, std::uint32_t offset, std::uint32_t options) {
    const std::uint32_t word = Peek(field, packet, offset, options);
    if (packet.Field(PlaceOf(field, offset, options), field.sizeinbits / 8) != nullptr)
        word_.store(word, std::memory_order_relaxed);
    return word;
}

std::uint32_t RawWord::Peek(const FieldPlace& field, PacketView packet, std::uint32_t offset,
                            std::uint32_t options) const {
    const std::uint8_t* bytes = packet.Field(PlaceOf(field, offset, options), field.sizeinbits / 8);
    if (bytes == nullptr) return word_.load(std::memory_order_relaxed);
    const bool lowByteFirst = (options & kReadNoSwap) != 0 || field.IsLowByteFirst();
    return ReadField(bytes, field.sizeinbits, lowByteFirst);
}

}  // namespace corvex
