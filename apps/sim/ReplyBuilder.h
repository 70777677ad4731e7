// What the simulated engine says: replies to a definition's send commands, and the packets of its slow stream.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "apps/sim/Motion.h"

namespace corvex {

class ADXCSendCommand;
class ADXDefinition;
class EngineModel;

// A reply is exactly replysize bytes: in front of the packet a header as such controllers send it (the request's first
// byte, a length, the rest of the request), then the packet with the values and flags bound to the command or to none,
// and, where the reply has room behind the packet, a last byte that makes the sum of all bytes 0.
//
// A function of seed and time alone. Keeps nothing of the definition; immutable after construction, any thread.
class ReplyBuilder {
public:
    // Longer replies than this are no definition of a serial line; they are left unanswered.
    static constexpr std::uint32_t kLongest = 65536;

    ReplyBuilder(const ADXDefinition& definition, std::uint64_t seed, Motion motion = Motion::kDrive);

    // The requests, in list order: index n here is command n in Build. Commands without bytes are left out.
    struct Command {
        std::uint32_t id = 0;  // its hash
        std::vector<std::uint8_t> request;
        std::uint32_t replysize = 0;
        bool answered = false;  // a reply is expected
    };
    const std::vector<Command>& Commands() const { return commands_; }
    // The reply as of `seconds` of engine time.
    std::vector<std::uint8_t> Build(std::size_t command, double seconds) const;

    // Whether the definition listens to a 160-baud stream, and the stream's packet. The first such command counts.
    bool HasStream() const { return stream_.has_value(); }
    std::vector<std::uint8_t> BuildStreamPacket(double seconds) const;
    // The id hash of that command.
    std::uint32_t StreamId() const { return streamId_; }

private:
    using WritePacket = std::function<void(std::span<std::uint8_t> packet, double seconds)>;
    struct Plan {
        std::uint32_t packetoffset;
        std::uint32_t capacity;  // bytes of the reply from there on
        bool checksum;
        WritePacket write;
    };

    Plan MakePlan(const ADXDefinition& definition, std::uint32_t hash, std::uint32_t offset,
                  std::uint32_t capacity) const;
    void AddCommand(const ADXDefinition& definition, const ADXCSendCommand& send);

    std::uint64_t seed_;
    std::shared_ptr<const EngineModel> engine_;  // null when all is swept
    std::vector<Command> commands_;
    std::vector<Plan> plans_;  // one per command
    std::optional<Plan> stream_;
    std::uint32_t streamId_ = 0;
};

}  // namespace corvex
