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

void LineDiagnosis::Add(const ReplyEvent& event) {
    if (event.code == kCodeSuccess) {
        // A command that asks for nothing says nothing of who listens.
        if (!event.expected) return;
        ++good_;
        const auto* const command = As<ADXCSendCommand>(event.command);
        if (command != nullptr && event.sampled) AddGood(*command, event.reply);
        return;
    }
    if (event.code == kCodeStopped) return;
    ++bad_;
    if (event.code == kCodeShortWrite) ++writes_;
    if (event.code == kCodeShortReply) AddShort(event);
    if (event.code == kCodeBadFraming) ++framings_;
    if (event.code == kCodeNoSync) ++syncs_;
}

void LineDiagnosis::AddGood(const ADXCSendCommand& command, const std::vector<std::uint8_t>& reply) {
    if (!echo_ && BeginsWithEcho(command, reply)) ++echoedgood_;
    if (command.size() == 0 || command.packetoffset == 0 || reply.empty()) return;
    const auto [first, isnew] = beginnings_.emplace(&command, reply.front());
    const bool alike = reply.front() == command.bytestring()[0];
    const bool steady = isnew || first->second == reply.front();
    if (!alike && (!steady || IsOneByteOnly(reply))) ++strange_;
}

void LineDiagnosis::AddShort(const ReplyEvent& event) {
    const auto* const command = As<ADXCSendCommand>(event.command);
    if (command != nullptr) {
        wanted_ = command->replysize;
        timeout_ = command->replytimeout;
    }
    if (event.reply.empty()) {
        ++silent_;
    } else if (!echo_ && command != nullptr && IsOnlyEcho(*command, event.reply)) {
        ++echoes_;
    } else {
        ++shorts_;
        if (command != nullptr && command->size() != 0 && event.reply.front() == command->bytestring()[0]) ++begun_;
        ++lengths_[event.reply.size()];
    }
}

std::string LineDiagnosis::WhyNoReply(double seconds) const {
    if (good_ != 0) return {};
    if (bad_ == 0) return Printf("no reply in %.1f s: no command that is answered has run yet", seconds);
    if (writes_ * 2 > bad_) return Printf("no reply in %.1f s: the port takes no bytes", seconds);
    if (syncs_ * 2 > bad_)
        return Printf("no packet in %.1f s: the line is silent, or carries no 160-baud stream", seconds);
    if (framings_ * 2 > bad_) return Printf("no packet in %.1f s: every packet has badly framed bytes", seconds);
    return WhyShort(seconds);
}

std::string LineDiagnosis::WhyShort(double seconds) const {
    if (shorts_ * 4 >= bad_) {
        const auto most = std::max_element(lengths_.begin(), lengths_.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        if (most != lengths_.end() && most->second * 4 >= shorts_ * 3)
            return Printf("no whole reply in %.1f s: %s come where the definition expects %u", seconds,
                          Counted(most->first, "byte").c_str(), wanted_) +
                   (timeout_ == 0 ? ""
                                  : Printf("; the engine sends another length, or answers too late for the "
                                           "replytimeout of %u ms",
                                           timeout_));
        // The rest of a late reply comes in front of the next one, so that not every one begins as it should.
        if (timeout_ != 0 && begun_ * 4 >= shorts_)
            return Printf(
                "no whole reply in %.1f s: replies begin, but are cut off by the replytimeout of %u ms; the engine "
                "answers late, or the definition expects too much with %u bytes",
                seconds, timeout_, wanted_);
        return Printf(
            "no whole reply in %.1f s: bytes come that are no reply; another device talks, or the baud is wrong",
            seconds);
    }
    if (echoes_ > silent_) return Printf("no reply in %.1f s: only our own echo comes back", seconds);
    if (echo_) return Printf("no reply in %.1f s: the line is silent, or carries only our own echo", seconds);
    return Printf("no reply in %.1f s: the line is silent", seconds);
}

std::string LineDiagnosis::Doubt() const {
    if (good_ >= kTellingReplies && strange_ * 2 > good_)
        return "replies do not begin like the command that asks for them: the line may carry nothing but noise";
    if (good_ == 0 || echoedgood_ * 2 <= good_) return {};
    return "replies begin with our own command: the interface seems to echo, but the definition does not say so";
}

}  // namespace corvex
