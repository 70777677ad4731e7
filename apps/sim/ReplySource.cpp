#include "apps/sim/ReplySource.h"

namespace corvex {

std::vector<std::uint8_t> ReplySource::Next(std::size_t command, double seconds) {
    std::vector<std::uint8_t> reply;
    if (TakeRecorded(builder_.Commands()[command].id, reply)) return reply;
    return builder_.Build(command, seconds);
}

std::vector<std::uint8_t> ReplySource::NextStreamPacket(double seconds) {
    std::vector<std::uint8_t> packet;
    if (TakeRecorded(builder_.StreamId(), packet)) return packet;
    return builder_.BuildStreamPacket(seconds);
}

bool ReplySource::TakeRecorded(std::uint32_t id, std::vector<std::uint8_t>& reply) {
    const std::size_t count = recording_ ? recording_->Count(id) : 0;
    if (count == 0) return false;
    reply = recording_->Reply(id, next_[id]++ % count);
    return true;
}

}  // namespace corvex
