#include "session/diagnosis/LineDiagnosis.h"

#include <algorithm>
#include <span>

#include "acquisition/DataAcqStatus.h"
#include "definition/ADXCSendCommand.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// The reply is nothing but the command coming back, or the beginning of it.
bool IsOnlyEcho(const ADXCSendCommand& command, const std::vector<std::uint8_t>& reply) {
    return reply.size() <= command.size() && std::equal(reply.begin(), reply.end(), command.bytestring());
}

// Fewer bytes than this may well be the same by chance: replies often begin as their command does.
constexpr std::uint32_t kTellingBytes = 3;

// A line that carries nothing but noise brings all the bytes that are asked for. Where the packet does not begin at
// once, what stands before it is the same in all replies of an engine.
bool IsOneByteOnly(const std::vector<std::uint8_t>& reply) {
    return reply.size() > kTellingBytes && std::ranges::count(reply, reply.front()) == std::ssize(reply);
}

constexpr std::size_t kTellingReplies = 3;

bool BeginsWithEcho(const ADXCSendCommand& command, const std::vector<std::uint8_t>& reply) {
    return command.size() >= kTellingBytes && reply.size() > command.size() &&
           std::equal(command.bytestring(), command.bytestring() + command.size(), reply.begin());
}

}  // namespace

ReplyKind KindOf(const ReplyEvent& event, bool echo) {
    switch (event.code) {
        case kCodeSuccess:
            // A command that asks for nothing says nothing of who listens.
            return event.expected ? ReplyKind::kGood : ReplyKind::kNone;
        case kCodeStopped:
            return ReplyKind::kNone;
        case kCodeShortWrite:
            return ReplyKind::kUnsent;
        case kCodeBadFraming:
            return ReplyKind::kBadFraming;
        case kCodeNoSync:
            return ReplyKind::kNoSync;
        case kCodeShortReply:
            break;
        default:
            return ReplyKind::kOther;
    }
    const auto* const command = As<ADXCSendCommand>(event.command);
    if (event.reply.empty()) return ReplyKind::kSilent;
    return !echo && command != nullptr && IsOnlyEcho(*command, event.reply) ? ReplyKind::kOnlyEcho : ReplyKind::kShort;
}

void LineDiagnosis::Add(const ReplyEvent& event) {
    const ReplyKind kind = KindOf(event, echo_);
    if (kind == ReplyKind::kNone) return;
    if (kind == ReplyKind::kGood) {
        ++good_;
        const auto* const command = As<ADXCSendCommand>(event.command);
        if (command != nullptr && event.sampled) AddGood(*command, event.reply);
        return;
    }
    ++bad_;
    if (kind == ReplyKind::kUnsent) ++writes_;
    if (kind == ReplyKind::kBadFraming) ++framings_;
    if (kind == ReplyKind::kNoSync) ++syncs_;
    if (event.code == kCodeShortReply) AddShort(event, kind);
}

void LineDiagnosis::AddGood(const ADXCSendCommand& command, const std::vector<std::uint8_t>& reply) {
    if (!echo_ && BeginsWithEcho(command, reply)) ++echoedgood_;
    if (command.size() == 0 || command.packetoffset == 0 || reply.empty()) return;
    const auto [first, isnew] = beginnings_.emplace(&command, reply.front());
    const bool alike = reply.front() == command.bytestring()[0];
    const bool steady = isnew || first->second == reply.front();
    if (!alike && (!steady || IsOneByteOnly(reply))) ++strange_;
}

void LineDiagnosis::AddShort(const ReplyEvent& event, ReplyKind kind) {
    const auto* const command = As<ADXCSendCommand>(event.command);
    if (command != nullptr) {
        wanted_ = command->replysize;
        timeout_ = command->replytimeout;
    }
    if (kind == ReplyKind::kSilent) {
        ++silent_;
    } else if (kind == ReplyKind::kOnlyEcho) {
        ++echoes_;
    } else {
        ++shorts_;
        if (command != nullptr && command->size() != 0 && event.reply.front() == command->bytestring()[0]) ++begun_;
        ++lengths_[event.reply.size()];
    }
}

LineTrouble LineDiagnosis::Trouble() const {
    if (good_ != 0) return LineTrouble::kNone;
    if (bad_ == 0) return LineTrouble::kNothingAsked;
    if (writes_ * 2 > bad_) return LineTrouble::kUnsent;
    if (syncs_ * 2 > bad_) return LineTrouble::kNoStream;
    if (framings_ * 2 > bad_) return LineTrouble::kBadFraming;
    if (shorts_ * 4 >= bad_) return ShortTrouble();
    if (echoes_ > silent_) return LineTrouble::kOnlyEcho;
    return echo_ ? LineTrouble::kSilentOrEcho : LineTrouble::kSilent;
}

LineTrouble LineDiagnosis::ShortTrouble() const {
    const auto most = lengths_.find(UsualLength());
    if (most != lengths_.end() && most->second * 4 >= shorts_ * 3) return LineTrouble::kWrongLength;
    // The rest of a late reply comes in front of the next one, so that not every one begins as it should.
    return timeout_ != 0 && begun_ * 4 >= shorts_ ? LineTrouble::kLate : LineTrouble::kStrangers;
}

std::size_t LineDiagnosis::UsualLength() const {
    const auto most = std::ranges::max_element(lengths_, {}, [](const auto& length) { return length.second; });
    return most == lengths_.end() ? 0 : most->first;
}

std::string LineDiagnosis::WhyNoReply(double seconds) const {
    switch (Trouble()) {
        case LineTrouble::kNothingAsked:
            return Printf("no reply in %.1f s: no command that is answered has run yet", seconds);
        case LineTrouble::kUnsent:
            return Printf("no reply in %.1f s: the port takes no bytes", seconds);
        case LineTrouble::kNoStream:
            return Printf("no packet in %.1f s: the line is silent, or carries no 160-baud stream", seconds);
        case LineTrouble::kBadFraming:
            return Printf("no packet in %.1f s: every packet has badly framed bytes", seconds);
        case LineTrouble::kWrongLength:
            return Printf("no whole reply in %.1f s: %s come where the definition expects %u", seconds,
                          Counted(UsualLength(), "byte").c_str(), wanted_) +
                   (timeout_ == 0 ? ""
                                  : Printf("; the engine sends another length, or answers too late for the "
                                           "replytimeout of %u ms",
                                           timeout_));
        case LineTrouble::kLate:
            return Printf(
                "no whole reply in %.1f s: replies begin, but are cut off by the replytimeout of %u ms; the engine "
                "answers late, or the definition expects too much with %u bytes",
                seconds, timeout_, wanted_);
        case LineTrouble::kStrangers:
            return Printf(
                "no whole reply in %.1f s: bytes come that are no reply; another device talks, or the baud is wrong",
                seconds);
        case LineTrouble::kOnlyEcho:
            return Printf("no reply in %.1f s: only our own echo comes back", seconds);
        case LineTrouble::kSilentOrEcho:
            return Printf("no reply in %.1f s: the line is silent, or carries only our own echo", seconds);
        case LineTrouble::kSilent:
            return Printf("no reply in %.1f s: the line is silent", seconds);
        default:
            return {};
    }
}

bool LineDiagnosis::IsYoung() const {
    return good_ + bad_ < kTellingReplies;
}

LineTrouble LineDiagnosis::DoubtfulTrouble() const {
    if (good_ >= kTellingReplies && strange_ * 2 > good_) return LineTrouble::kStrangeReplies;
    return good_ == 0 || echoedgood_ * 2 <= good_ ? LineTrouble::kNone : LineTrouble::kUnknownEcho;
}

std::string LineDiagnosis::Doubt() const {
    switch (DoubtfulTrouble()) {
        case LineTrouble::kStrangeReplies:
            return "replies do not begin like the command that asks for them: the line may carry nothing but noise";
        case LineTrouble::kUnknownEcho:
            return "replies begin with our own command: the interface seems to echo, but the definition does not say "
                   "so";
        default:
            return {};
    }
}

}  // namespace corvex
