// How records lead to one another. A record's nextOffset is the proof that it stands whole where it was written: damage
// rarely leaves it right. It has 32 bits and wraps in a file of more than 4 GiB.
#pragma once

#include <cstdint>
#include <optional>

#include "logging/LogFormat.h"

namespace corvex {

// By how much the record's nextOffset falls short of `end`, the place behind its data: 0 where it is right, the size of
// what was inserted in front of it, or the negative of what was removed.
inline std::uint32_t ShortfallOf(const LogRecord& record, std::uint64_t end) {
    return static_cast<std::uint32_t>(end) - record.nextOffset;
}

// Where a record of an unknown item that stands at `offset` leads to. Nobody knows its size, so it counts as whole when
// that place lies behind its 12 bytes and inside the file; no value otherwise. `shortfall` as above.
inline std::optional<std::uint64_t> PlaceBehindUnknown(const LogRecord& record, std::uint64_t offset,
                                                       std::uint64_t fileSize, std::uint32_t shortfall = 0) {
    const std::uint32_t distance = record.nextOffset + shortfall - static_cast<std::uint32_t>(offset);
    if (distance < kLogRecordBytes || offset + distance > fileSize) return std::nullopt;
    return offset + distance;
}

// The first twelve bytes of what a power cut leaves in a file that the system had made longer already.
inline bool IsBlank(const LogRecord& record) {
    return record.nextOffset == 0 && record.timeMs == 0 && record.itemIndex == 0 && record.reserved[0] == 0 &&
           record.reserved[1] == 0 && record.reserved[2] == 0;
}

// The times of the last two records: one of them may be damaged.
class LastTimes {
public:
    void Add(std::uint32_t timeMs) {
        before_ = last_ ? *last_ : timeMs;
        last_ = timeMs;
    }
    // What a later record's time is not below.
    std::uint32_t Floor() const { return !last_ ? 0 : before_ < *last_ ? before_ : *last_; }

private:
    std::optional<std::uint32_t> last_;
    std::uint32_t before_ = 0;
};

}  // namespace corvex
