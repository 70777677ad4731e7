// When a blocking read or write of the serial line has to give up, counted in milliseconds.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/SerialPlatform.h"

namespace corvex {

inline constexpr std::uint32_t kNoGapLimit = 0xFFFFFFFF;

// How long a call on a vanished device waits when no total limit is in force: long enough that a loop over a dead
// line costs nothing.
inline constexpr std::int64_t kDeadLineWait = 100;

// What the five numbers ask of one read.
struct ReadLimits {
    bool immediate = false;             // return at once with what is there
    bool firstBytesEndIt = false;       // wait for the first bytes only
    std::optional<std::int64_t> total;  // from the start of the read
    std::optional<std::int64_t> gap;    // from the last byte that came
};

inline ReadLimits LimitsOfRead(const SerialTimeouts& times, std::uint32_t count) {
    ReadLimits limits;
    const bool anyTotal = times.readMultiplier != 0 || times.readConstant != 0;
    if (times.readInterval == kNoGapLimit) {
        limits.immediate = !anyTotal;
        limits.firstBytesEndIt = times.readMultiplier == kNoGapLimit;
    } else if (times.readInterval != 0) {
        limits.gap = times.readInterval;
    }
    if (limits.firstBytesEndIt) {
        limits.total = times.readConstant;
    } else if (anyTotal) {
        limits.total = static_cast<std::int64_t>(times.readMultiplier) * count + times.readConstant;
    }
    return limits;
}

inline std::optional<std::int64_t> LimitOfWrite(const SerialTimeouts& times, std::uint32_t count) {
    if (times.writeMultiplier == 0 && times.writeConstant == 0) return std::nullopt;
    return static_cast<std::int64_t>(times.writeMultiplier) * count + times.writeConstant;
}

}  // namespace corvex
