#include "session/diagnosis/LinkWatch.h"

#include "definition/ADXCSendCommand.h"
#include "session/diagnosis/LinkReport.h"

namespace corvex {

namespace {

constexpr std::uint32_t kFromLine = 0;  // source of a status

bool BringsReply(const ADXObject* command) {
    const auto* const send = As<ADXCSendCommand>(command);
    return send != nullptr ? send->ExpectsReply() : command != nullptr;
}

}  // namespace

void LinkWatch::Begin(const std::string& port, bool asks) {
    const std::lock_guard lock(lock_);
    record_.Begin(Now(), port, asks);
}

void LinkWatch::Refuse(const std::string& reason) {
    const std::lock_guard lock(lock_);
    record_.Refuse(Now(), reason);
}

void LinkWatch::Vanish(const std::string& reason) {
    const std::lock_guard lock(lock_);
    record_.Vanish(Now(), reason);
}

void LinkWatch::Return() {
    const std::lock_guard lock(lock_);
    record_.Return(Now());
}

void LinkWatch::Add(const DataAcqStatus& status, PacketView reply, const LineSettings& settings) {
    if (status.source != kFromLine) return;
    const std::lock_guard lock(lock_);
    event_.t = Now();
    event_.command = status.command;
    event_.code = status.code;
    event_.expected = BringsReply(status.command);
    event_.sampled = event_.expected && status.code == kCodeSuccess;
    event_.reply.assign(reply.Bytes(), reply.Bytes() + (reply ? reply.Size() : 0));
    record_.Add(event_, settings);
}

LinkRecord LinkWatch::Copy() const {
    const std::lock_guard lock(lock_);
    return record_;
}

LinkState LinkWatch::State(bool scanning) const {
    const LinkRecord record = Copy();
    return JudgeLink(record, Now(), scanning);
}

std::string LinkWatch::Report(bool scanning) const {
    const LinkRecord record = Copy();
    return LinkReport(record, Now(), scanning);
}

}  // namespace corvex
