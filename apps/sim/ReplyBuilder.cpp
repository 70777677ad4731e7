#include "apps/sim/ReplyBuilder.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <utility>

#include "apps/sim/BitToggles.h"
#include "apps/sim/DriveFlags.h"
#include "apps/sim/DriveValues.h"
#include "apps/sim/EngineModel.h"
#include "apps/sim/ValueSweeps.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXDefinition.h"

namespace corvex {

namespace {

// Length bytes of these controllers count from here, so that they are told from ordinary numbers.
constexpr std::size_t kLengthBase = 0x52;

void WriteHeader(std::span<std::uint8_t> header, const std::vector<std::uint8_t>& request, std::size_t replysize) {
    for (std::size_t i = 0; i < header.size(); ++i)
        header[i] = i < request.size() ? request[i] : std::uint8_t{0};
    if (header.size() > 1) header[1] = static_cast<std::uint8_t>(kLengthBase + replysize);
}

}  // namespace

ReplyBuilder::ReplyBuilder(const ADXDefinition& definition, std::uint64_t seed, Motion motion) : seed_(seed) {
    if (motion == Motion::kDrive)
        engine_ = std::make_shared<const EngineModel>(seed, DriveValues::HaveTurbo(definition));
    for (const auto& object : definition.Objects()) {
        if (const auto* send = As<ADXCSendCommand>(object.get())) AddCommand(definition, *send);
        const auto* listen = As<ADXC160BaudListen>(object.get());
        if (listen == nullptr || stream_ || listen->packetsize == 0 || listen->packetsize > kLongest) continue;
        streamId_ = listen->GetIdHash();
        stream_ = MakePlan(definition, streamId_, 0, listen->packetsize);
    }
}

ReplyBuilder::Plan ReplyBuilder::MakePlan(const ADXDefinition& definition, std::uint32_t hash, std::uint32_t offset,
                                          std::uint32_t capacity) const {
    Plan plan{offset, capacity, false, {}};
    if (engine_) {
        const DriveValues values(definition, hash, capacity);
        const DriveFlags flags(definition, hash, values.Taken());
        plan.write = [values, flags, engine = engine_, seed = seed_](std::span<std::uint8_t> packet, double seconds) {
            const EngineState state = engine->At(seconds);
            values.Write(packet, state, seed, seconds);
            flags.Write(packet, state, seed, seconds);
        };
    } else {
        const ValueSweeps values(definition, hash, capacity);
        const BitToggles bits(definition, hash, values.Taken());
        plan.write = [values, bits, seed = seed_](std::span<std::uint8_t> packet, double seconds) {
            values.Write(packet, SweepModel(seed), seconds);
            bits.Write(packet, seed, seconds);
        };
    }
    return plan;
}

void ReplyBuilder::AddCommand(const ADXDefinition& definition, const ADXCSendCommand& send) {
    if (send.size() == 0) return;
    Command command;
    command.id = send.GetIdHash();
    command.request.assign(send.bytestring(), send.bytestring() + send.size());
    command.replysize = send.replysize;
    command.answered = send.ExpectsReply() && send.replysize != 0 && send.replysize <= kLongest;
    const std::uint32_t size = command.answered ? send.replysize : 0;
    const std::uint32_t offset = std::min(send.packetoffset, size);
    Plan plan = MakePlan(definition, send.GetIdHash(), offset, size - offset);
    plan.checksum = std::uint64_t{send.packetoffset} + send.packetsize < size;
    commands_.push_back(std::move(command));
    plans_.push_back(std::move(plan));
}

std::vector<std::uint8_t> ReplyBuilder::Build(std::size_t command, double seconds) const {
    const Plan& plan = plans_[command];
    std::vector<std::uint8_t> reply(std::size_t{plan.packetoffset} + plan.capacity);
    WriteHeader(std::span(reply).first(plan.packetoffset), commands_[command].request, reply.size());
    const auto packet = std::span(reply).subspan(plan.packetoffset);
    plan.write(packet, seconds);
    if (plan.checksum) {
        reply.back() = 0;
        reply.back() = static_cast<std::uint8_t>(0U - std::accumulate(reply.begin(), reply.end(), 0U));
    }
    return reply;
}

std::vector<std::uint8_t> ReplyBuilder::BuildStreamPacket(double seconds) const {
    if (!stream_) return {};
    std::vector<std::uint8_t> packet(stream_->capacity);
    stream_->write(packet, seconds);
    return packet;
}

}  // namespace corvex
