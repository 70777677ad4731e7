#include "apps/cli/ScanTap.h"

#include <utility>

#include "apps/cli/ScanRecorder.h"
#include "definition/ADXCSendCommand.h"
#include "session/SessionState.h"

namespace corvex {

namespace {

constexpr std::uint32_t kFromLog = 1;  // source of a status

std::vector<std::uint8_t> CopyOf(PacketView view) {
    if (!view) return {};
    return {view.Bytes(), view.Bytes() + view.Size()};
}

bool ExpectsReply(const ADXObject* command) {
    const auto* send = As<ADXCSendCommand>(command);
    return send != nullptr ? send->ExpectsReply() : command != nullptr;
}

}  // namespace

SessionCalls ScanTap::Calls() {
    SessionCalls calls;
    calls.replyEnded = [this](const DataAcqStatus& status, PacketView reply) { TakeReply(status, reply); };
    calls.portRefused = [this](const std::string& reason) { TakeRefusal(reason); };
    calls.deviceVanished = [this](const std::string& reason) { TakeOutage(reason); };
    calls.deviceBack = [this] { TakeReturn(); };
    calls.refreshButtons = [this] { queue_.Wake(); };
    return calls;
}

void ScanTap::Attach(SessionState& session) {
    session_ = &session;
    session.views.Register(SampleViewKind::kMonitors, this);
}

// A trigger publishes too, but without a packet: nothing has come.
void ScanTap::Read(const PublishedSample& sample) {
    if (!sample.packet) return;
    pending_.t = sample.t;
    pending_.sampled = true;
    pending_.packet = CopyOf(sample.packet);
}

void ScanTap::TakeReply(const DataAcqStatus& status, PacketView reply) {
    const bool played = status.source == kFromLog;
    ReplyEvent event = std::exchange(pending_, {});
    event.command = played ? session_->definition.FindByHash(status.commandId) : status.command;
    // The time of a played sample comes as a 32-bit float, which is too coarse for the end of a long log.
    if (played) event.t = session_->log.CurrentTime() / 1000.0;
    if (!played && !event.sampled) event.t = session_->timer.Elapsed();
    event.code = status.code;
    event.expected = ExpectsReply(event.command);
    event.reply = CopyOf(reply);
    // Packets of a 160-baud stream are published without the raw words being taken; the table reads raw words.
    if (event.sampled && event.command != nullptr && status.command->GetType() == kType160BaudListen)
        session_->definition.UpdateValues(event.Packet(), event.command->GetIdHash());
    if (recorder_ != nullptr && event.code == kCodeSuccess && event.expected) recorder_->Add(*event.command, reply);
    if (status.code != kCodeSuccess && !session_->reconnects) {
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

void ScanTap::TakeOutage(const std::string& reason) {
    {
        const std::lock_guard lock(lock_);
        lost_ = reason.empty() ? "port has vanished" : reason;
        news_.push_back(lost_ + "; waiting for it to come back");
        ++outages_;
    }
    queue_.Wake();
}

void ScanTap::TakeReturn() {
    {
        const std::lock_guard lock(lock_);
        lost_.clear();
        news_.emplace_back("port is back");
    }
    queue_.Wake();
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

std::uint32_t ScanTap::Outages() const {
    const std::lock_guard lock(lock_);
    return outages_;
}

std::vector<std::string> ScanTap::TakeNews() {
    const std::lock_guard lock(lock_);
    return std::exchange(news_, {});
}

}  // namespace corvex
