// The raw word of a value or a bitmask: the only thing that changes while a session runs.
#pragma once

#include <atomic>
#include <cstdint>

#include "definition/FieldReader.h"
#include "definition/PacketView.h"

namespace corvex {

// Where a field lies and how it is stored, as its owner has it.
struct FieldPlace {
    // kFlagLowByteFirst in flags.
    bool IsLowByteFirst() const { return (flags & kFlagLowByteFirst) != 0; }

    std::uint32_t packetoffset;
    std::uint32_t sizeinbits;
    std::uint32_t flags;
};

// Starts at 0. May be taken on one thread and read on another at the same time.
class RawWord {
public:
    // Reads the field with the given ReadOptions and keeps the word. Without a packet, or with one that does not hold
    // the whole field, the last word stands and is returned.
    std::uint32_t Take(const FieldPlace& field, PacketView packet, std::uint32_t offset, std::uint32_t options);
    // What Take would return, without keeping it.
    std::uint32_t Peek(const FieldPlace& field, PacketView packet, std::uint32_t offset, std::uint32_t options) const;

private:
    std::atomic<std::uint32_t> word_{0};
};

}  // namespace corvex
