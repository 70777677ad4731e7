// How a simulated engine behaves on its line, and what it did there.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "apps/sim/Motion.h"

namespace corvex {

class RecordedReplies;

struct SimOptions {
    std::uint64_t seed = 1;
    Motion motion = Motion::kDrive;
    bool pace = false;  // bytes take their time on the line: 10 bits each at the definition's baud
    bool echo =
        false;  // the line gives every byte back to its sender, as it always does when the definition counts on it

    // Faults; any of them together.
    double drop = 0.0;   // probability that a reply does not come
    double noise = 0.0;  // probability that one byte of a reply (or stream packet) is changed or lost, half each
    std::optional<std::uint64_t>
        faultyReplies;                  // only so many replies are open to drop and noise, the later ones whole
    std::uint32_t late = 0;             // milliseconds that each reply starts late
    bool chatter = false;               // other modules talk on the line
    bool silent = false;                // the engine never says anything
    std::optional<double> unplugAfter;  // seconds until the device vanishes

    std::optional<double> seconds;  // ends by itself then

    std::shared_ptr<const RecordedReplies> recording;  // repeated where it has something; null for none
};

struct SimStats {
    std::uint64_t requests = 0;       // recognised
    std::uint64_t replies = 0;        // begun, damaged ones among them
    std::uint64_t drops = 0;          // replies and stream packets withheld
    std::uint64_t noise = 0;          // replies and stream packets damaged
    std::uint64_t cut = 0;            // of the damaged ones, those that lost a byte: a reader can't miss that
    std::uint64_t streamPackets = 0;  // begun, damaged ones among them
    std::uint64_t idleFrames = 0;     // other modules' frames and wake-up patterns
    std::uint64_t unread = 0;         // bytes that nobody took off the line

    // Of paced replies: the time from a request's first byte to the reply's last, against what the line takes.
    std::uint64_t pacedReplies = 0;
    double meanErrorPercent = 0.0;
    double lateness99Ms = 0.0;  // how late the last byte went out, 99th percentile
    double latenessMaxMs = 0.0;
};

// "replies: 12 drops: 0 noise: 0 ..." on one line, without a line end; the pacing figures when there were paced
// replies.
std::string Describe(const SimStats& stats);
// The same as one JSON object.
std::string DescribeAsJson(const SimStats& stats);

}  // namespace corvex
