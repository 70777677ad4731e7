// Where a simulated engine takes its replies from: a recording, or its own model.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "apps/sim/RecordedReplies.h"
#include "apps/sim/ReplyBuilder.h"

namespace corvex {

// Each command's recorded replies come in the order of the log, and begin anew when there are no more. What the log has
// no reply for is answered by the model: a recording seldom has the replies that made the connection, and without them
// no scan would ever begin. One thread.
class ReplySource {
public:
    // The recording may be null.
    ReplySource(const ADXDefinition& definition, std::uint64_t seed, std::shared_ptr<const RecordedReplies> recording,
                Motion motion = Motion::kDrive)
        : builder_(definition, seed, motion), recording_(std::move(recording)) {}

    const std::vector<ReplyBuilder::Command>& Commands() const { return builder_.Commands(); }
    bool HasStream() const { return builder_.HasStream(); }

    // The reply as of `seconds` of engine time, which a recording knows nothing of.
    std::vector<std::uint8_t> Next(std::size_t command, double seconds);
    std::vector<std::uint8_t> NextStreamPacket(double seconds);

private:
    bool TakeRecorded(std::uint32_t id, std::vector<std::uint8_t>& reply);

    const ReplyBuilder builder_;
    const std::shared_ptr<const RecordedReplies> recording_;
    std::unordered_map<std::uint32_t, std::size_t> next_;  // by command
};

}  // namespace corvex
