#include "apps/cli/ScanTap.h"

#include <utility>

#include "definition/ADXCSendCommand.h"
#include "session/SessionState.h"

namespace corvex {

namespace {

std::vector<std::uint8_t> Bytes(PacketView view) {
    if (!view) return {};
    return {view.Bytes(), view.Bytes() + view.Size()};
}

bool ExpectsReply(const ADXObject* command) {
    if (command == nullptr || command->GetType() != kTypeSendCommand) return command != nullptr;
    return (static_cast<const ADXCSendCommand*>(command)->flags & 1) != 0;
}

}  // namespace

SessionCalls ScanTap::Calls() {
    SessionCalls calls;
    calls.addMonitorSample = [this](double t, PacketView packet, std::uint32_t) { TakeSample(t, packet); };
    calls.replyEnded = [this](const DataAcqStatus& status, PacketView reply) { TakeReply(status, reply); };
    calls.portRefused = [this](const std::string& reason) { TakeRefusal(reason); };
    calls.refreshButtons = [this] { queue_.Wake(); };
    return calls;
}

// A trigger publishes too, but without a packet: nothing has come.
void ScanTap::TakeSample(double t, PacketView packet) {
    if (!packet) return;
    pending_.t = t;
    pending_.sampled = true;
    pending_.packet = Bytes(packet);
}

void ScanTap::TakeReply(const DataAcqStatus& status, PacketView reply) {
    ReplyEvent event = std::exchange(pending_, {});
    if (!event.sampled) event.t = session_->timer.Elapsed();
    event.command = status.command;
    event.code = status.code;
    event.expected = ExpectsReply(status.command);
    event.reply = Bytes(reply);
    // Packets of a 160-baud stream are published without the raw words being taken; the table reads raw words.
    if (event.sampled && status.command != nullptr && status.command->GetType() == kType160BaudListen)
        session_->definition.UpdateValues(event.Packet(), status.command->GetIdHash());
    if (status.code != kCodeSuccess) {
        const std::string lost = session_->engine.port.LastError();
        if (!lost.empty()) {
            const std::lock_guard lock(lock_);
            lost_ = lost;
        }
    }
    queue_.Push(std::move(event));
}

void ScanTap::TakeRefusal(const std::string& reason) {
    const std::lock_guard lock(lock_);
    refused_ = true;
    refusal_ = reason;
}

bool ScanTap::PortRefused(std::string& reason) const {
    const std::lock_guard lock(lock_);
    reason = refusal_;
    return refused_;
}

std::string ScanTap::PortLost() const {
    const std::lock_guard lock(lock_);
    return lost_;
}

}  // namespace corvex
