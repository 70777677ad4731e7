#include "tests/support/ScriptedSerial.h"

#include <algorithm>
#include <optional>

#include "platform/SerialTimes.h"

namespace corvex::test {

namespace {

using Guard = std::lock_guard<std::mutex>;

std::string Number(std::uint32_t number) {
    std::string text(1, ' ');
    text += std::to_string(number);
    return text;
}

}  // namespace

void ScriptedSerial::Schedule(const Bytes& bytes, std::int64_t afterMs, std::int64_t gapMs) {
    std::int64_t at = clock_.Peek() + Counts(afterMs);
    for (const std::uint8_t byte : bytes) {
        if (!incoming_.empty()) at = std::max(at, incoming_.back().at);
        incoming_.push_back({at, byte});
        at += Counts(gapMs);
    }
}

void ScriptedSerial::Feed(const Bytes& bytes, std::int64_t afterMs, std::int64_t gapMs) {
    const Guard guard(lock_);
    Schedule(bytes, afterMs, gapMs);
}

void ScriptedSerial::Answer(const Bytes& command, const Bytes& reply, std::int64_t afterMs, std::int64_t gapMs) {
    const Guard guard(lock_);
    rules_.push_back({command, reply, afterMs, gapMs});
}

void ScriptedSerial::FeedForEver(std::uint8_t byte, std::int64_t gapMs) {
    const Guard guard(lock_);
    endlessGap_ = Counts(gapMs);
    endless_ = {clock_.Peek() + endlessGap_, byte};
}

void ScriptedSerial::Vanish() {
    const Guard guard(lock_);
    vanished_ = true;
    incoming_.clear();
}

void ScriptedSerial::ComeBack() {
    const Guard guard(lock_);
    vanished_ = false;
}

std::vector<std::string> ScriptedSerial::Calls() const {
    const Guard guard(lock_);
    return calls_;
}

std::vector<std::string> ScriptedSerial::Calls(const std::string& word) const {
    std::vector<std::string> found;
    for (const std::string& call : Calls()) {
        if (call.rfind(word, 0) == 0) found.push_back(call);
    }
    return found;
}

void ScriptedSerial::ForgetCalls() {
    const Guard guard(lock_);
    calls_.clear();
}

SerialSettings ScriptedSerial::Settings() const {
    const Guard guard(lock_);
    return settings_;
}

bool ScriptedSerial::IsOpen() const {
    const Guard guard(lock_);
    return open_;
}

SerialHandle ScriptedSerial::Open(const char* path) {
    if (onOpen) onOpen();
    const Guard guard(lock_);
    Note(std::string("open ") + path);
    open_ = !failOpen && !vanished_;
    failed_ = false;
    return open_ ? kHandle : kInvalidSerialHandle;
}

void ScriptedSerial::Close(SerialHandle /*handle*/) {
    const Guard guard(lock_);
    Note("close");
    open_ = false;
}

bool ScriptedSerial::GetState(SerialHandle /*handle*/, SerialSettings& settings) {
    const Guard guard(lock_);
    Note("getstate");
    settings = settings_;
    if (lineBaud) settings.baud = *lineBaud;
    return !failGetState;
}

bool ScriptedSerial::SetState(SerialHandle /*handle*/, const SerialSettings& settings) {
    const Guard guard(lock_);
    Note("setstate" + Number(settings.baud));
    if (!failSetState) settings_ = settings;
    return !failSetState;
}

bool ScriptedSerial::SetTimeouts(SerialHandle /*handle*/, const SerialTimeouts& timeouts) {
    const Guard guard(lock_);
    Note("timeouts" + Number(timeouts.readInterval) + Number(timeouts.readMultiplier) + Number(timeouts.readConstant) +
         Number(timeouts.writeMultiplier) + Number(timeouts.writeConstant));
    if (!failTimeouts) times_ = timeouts;
    return !failTimeouts;
}

bool ScriptedSerial::SetQueues(SerialHandle /*handle*/, std::uint32_t inputSize, std::uint32_t outputSize) {
    const Guard guard(lock_);
    Note("queues" + Number(inputSize) + Number(outputSize));
    return !failQueues;
}

void ScriptedSerial::Purge(SerialHandle /*handle*/, bool output, bool input) {
    const Guard guard(lock_);
    Note("purge" + Number(output ? 1 : 0) + Number(input ? 1 : 0));
    while (input && !incoming_.empty() && incoming_.front().at <= clock_.Peek())
        incoming_.pop_front();
}

const ScriptedSerial::Incoming* ScriptedSerial::Next() {
    if (!incoming_.empty()) return &incoming_.front();
    return endlessGap_ != 0 ? &endless_ : nullptr;
}

std::uint32_t ScriptedSerial::Read(SerialHandle handle, void* buffer, std::uint32_t count) {
    std::uint32_t number = 0;
    {
        const Guard guard(lock_);
        number = ++reads_;
    }
    if (onRead) onRead(number);
    const Guard guard(lock_);
    const bool works = handle == kHandle && failReads.count(number) == 0;
    failed_ = failed_ || vanished_;
    const std::uint32_t moved = works ? Deliver(static_cast<std::uint8_t*>(buffer), count) : 0;
    Note("read" + Number(count) + " ->" + Number(moved));
    return moved;
}

std::uint32_t ScriptedSerial::Deliver(std::uint8_t* buffer, std::uint32_t count) {
    const ReadLimits limits = LimitsOfRead(times_, count);
    const std::int64_t start = clock_.Peek();
    std::optional<std::int64_t> end, gapEnd;
    if (limits.total) end = start + Counts(*limits.total);
    if (limits.immediate) end = start;
    std::uint32_t got = 0;
    while (got < count) {
        std::optional<std::int64_t> until = end;
        if (gapEnd && (!until || *gapEnd < *until)) until = gapEnd;
        const Incoming* next = vanished_ ? nullptr : Next();
        if (next == nullptr || (until && next->at > *until)) {
            clock_.AdvanceTo(until.value_or(start + Counts(kDeadLineWait)));
            return got;
        }
        clock_.AdvanceTo(next->at);
        buffer[got++] = next->byte;
        if (incoming_.empty()) {
            endless_.at += endlessGap_;
        } else {
            incoming_.pop_front();
        }
        if (limits.gap) gapEnd = clock_.Peek() + Counts(*limits.gap);
    }
    return got;
}

std::uint32_t ScriptedSerial::Write(SerialHandle handle, const void* buffer, std::uint32_t count) {
    if (onWrite) onWrite();
    const Guard guard(lock_);
    const auto* bytes = static_cast<const std::uint8_t*>(buffer);
    failed_ = failed_ || vanished_;
    const std::uint32_t moved = vanished_ || handle != kHandle ? 0 : std::min(count, writeLimit);
    const Bytes sent(bytes, bytes + moved);
    std::string call = "write";
    for (const std::uint8_t byte : sent)
        call += Number(byte);
    Note(call);
    for (const Rule& rule : rules_) {
        if (rule.command == sent) Schedule(rule.reply, rule.afterMs, rule.gapMs);
    }
    return moved;
}

bool ScriptedSerial::Vanished(SerialHandle /*handle*/) const {
    const Guard guard(lock_);
    return failed_;
}

std::string ScriptedSerial::LastError() const {
    const Guard guard(lock_);
    if (failOpen) return "no such port";
    return vanished_ ? "port has vanished" : "";
}

}  // namespace corvex::test
