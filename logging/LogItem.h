// One command whose replies may occur in a log, and which bytes of a reply are stored.
#pragma once

#include <cstdint>
#include <vector>

#include "logging/LogFormat.h"

namespace corvex {

// Bit i says whether byte i of the reply is stored, least significant bit of the first byte first. A bit beyond the
// mask counts as set.
class LogMask {
public:
    LogMask() = default;
    explicit LogMask(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}
    // As the recorder writes it: 15 bytes, all set.
    static LogMask AllSet();

    bool IsSet(std::uint32_t bit) const { return bit / 8 >= bytes_.size() || (bytes_[bit / 8] >> (bit % 8) & 1U) != 0; }
    const std::vector<std::uint8_t>& Bytes() const { return bytes_; }
    std::uint32_t LengthInBits() const { return static_cast<std::uint32_t>(bytes_.size() * 8); }

private:
    std::vector<std::uint8_t> bytes_;
};

struct LogItem : LogItemFields {
    LogMask mask;
};

// The table as it stands in a file, its count first. Titles and reserved bytes are written as zeros.
std::vector<std::uint8_t> EncodeItemTable(const std::vector<LogItem>& items);

// Fills a record's data from a reply: a stored byte goes to its own place, one that is not stored leaves a gap. Walks
// no more than `packedSize` bytes of either. This is not the inverse of ExpandRecord when bits are clear; both are as
// files and their readers expect.
void PackReply(const LogMask& mask, const std::uint8_t* reply, std::uint32_t count, std::uint8_t* packed,
               std::uint32_t packedSize);

// Rebuilds `fullSize` bytes of a reply: each stored byte takes the next of the record, each other is 0, and so are
// those for which the record has no more bytes.
void ExpandRecord(const LogMask& mask, const std::uint8_t* packed, std::uint32_t packedSize, std::uint8_t* reply,
                  std::uint32_t fullSize);

}  // namespace corvex
