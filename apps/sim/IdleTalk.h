// What is said on a line while nobody polls: the patterns that a definition waits for, and other modules' frames.
#pragma once

#include <cstdint>
#include <vector>

#include "apps/sim/SimOptions.h"

namespace corvex {

class ADXDefinition;

// A definition that listens for chatter expects the vehicle to talk by itself, so its patterns are sent while the line
// is idle, unless the engine is silent. Frames of other modules are sent as a fault. All of it stops while a tester
// polls, but for a frame now and then right behind a reply, and leaves gaps of twice the longest silence that the
// definition looks for.
//
// Repeatable for a seed; keeps nothing of the definition. One thread.
class IdleTalk {
public:
    IdleTalk(const ADXDefinition& definition, const SimOptions& options);

    bool IsMute() const { return patterns_.empty() && !frames_; }
    // Seconds of quiet before the next talk. After a reply, a frame may follow at once.
    double NextGap(bool afterReply);
    std::vector<std::uint8_t> NextTalk();

private:
    std::uint64_t Draw() { return drawn_ = drawn_ * 6364136223846793005U + 1442695040888963407U; }
    std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>((Draw() >> 33) % limit); }

    std::vector<std::vector<std::uint8_t>> patterns_;
    bool frames_;
    double quiet_ = 0.0;    // least gap, seconds
    double period_ = 0.25;  // gap between patterns
    std::uint64_t drawn_;
    std::size_t next_ = 0;
    bool frameNext_ = false;
};

}  // namespace corvex
