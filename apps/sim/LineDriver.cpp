#include "apps/sim/LineDriver.h"

#include <algorithm>
#include <array>

#include "apps/sim/BitStream160.h"
#include "definition/ADXDefinition.h"

namespace corvex {

namespace {

constexpr double kBitsPerByte = 10.0;  // start, eight, stop
// A request whose bytes come through an adapter may have gaps of 16 ms in it; a pause is longer.
constexpr double kPause = 0.025;
constexpr double kLongestWait = 0.02;  // so that a stop is seen
constexpr double kFullLineWait = 0.001;

std::vector<std::vector<std::uint8_t>> RequestsOf(const ReplySource& source) {
    std::vector<std::vector<std::uint8_t>> requests;
    for (const ReplyBuilder::Command& command : source.Commands())
        requests.push_back(command.request);
    return requests;
}

}  // namespace

LineDriver::LineDriver(ISimLine& line, const ADXDefinition& definition, const SimOptions& options)
    : line_(line),
      options_(options),
      echoes_(options.echo || definition.HasEcho()),
      frequency_(static_cast<double>(line.Frequency())),
      byteTime_(kBitsPerByte / std::max(definition.baud, 1U)),
      source_(definition, options.seed, options.recording, options.motion),
      matcher_(RequestsOf(source_)),
      faults_(options),
      idle_(definition, options) {}

void LineDriver::Run(const std::atomic<bool>& stop) {
    start_ = line_.Now();
    heardEnd_ = streamEnd_ = start_;
    Rest(start_, false);
    while (!stop.load(std::memory_order_relaxed)) {
        const std::int64_t now = line_.Now();
        if (Over(now)) return;
        Hear(now);
        FillIdle(now);
        SendDue();
        line_.WaitForInput(NextMoment(line_.Now()));
    }
}

bool LineDriver::Over(std::int64_t now) {
    const double elapsed = SecondsOf(now - start_);
    if (options_.unplugAfter && elapsed >= *options_.unplugAfter) {
        line_.Unplug();
        return true;
    }
    return options_.seconds && elapsed >= *options_.seconds;
}

void LineDriver::Hear(std::int64_t now) {
    std::array<std::uint8_t, 256> bytes;
    const std::size_t count = line_.Read(bytes.data(), bytes.size());
    for (std::size_t i = 0; i < count; ++i)
        HearByte(bytes[i], now);
    if (count != 0) {
        lastHeard_ = now;
        Rest(heardEnd_, false);
    } else if (matcher_.IsWaiting() && SecondsOf(now - lastHeard_) > kPause) {
        heardEnd_ = std::max(heardEnd_, now);
        while (const auto command = matcher_.NextAfterPause())
            Answer(*command);
    }
}

void LineDriver::HearByte(std::uint8_t byte, std::int64_t now) {
    heardEnd_ = options_.pace ? std::max(heardEnd_, now) + CountsOf(byteTime_) : now;
    if (echoes_) echo_.push_back({heardEnd_, byte});
    matcher_.Feed(byte);
    while (const auto command = matcher_.Next())
        Answer(*command);
}

void LineDriver::Answer(std::size_t index) {
    const ReplyBuilder::Command& command = source_.Commands()[index];
    ++stats_.requests;
    talk_.clear();
    const std::size_t exchanged = command.request.size() + (command.answered ? command.replysize : 0U);
    engineTime_ += static_cast<double>(exchanged) * byteTime_;
    if (!command.answered || options_.silent) return;
    std::vector<std::uint8_t> reply = source_.Next(index, engineTime_);
    if (!faults_.Pass(reply, stats_)) return;
    ++stats_.replies;
    if (reply.empty()) return;
    requestStart_ = heardEnd_ - CountsOf(byteTime_ * static_cast<double>(command.request.size()));
    Say(reply, heardEnd_ + CountsOf(options_.late / 1000.0), byteTime_);
    talk_.back().lastOfReply = true;
}

void LineDriver::Say(std::span<const std::uint8_t> bytes, std::int64_t start, double byteTime) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const double end = options_.pace ? static_cast<double>(i + 1) * byteTime : 0.0;
        talk_.push_back({start + CountsOf(end), bytes[i]});
    }
}

// Nothing to say: the slow stream goes on, or what is said on an idle line.
void LineDriver::FillIdle(std::int64_t now) {
    if (!talk_.empty()) return;
    if (Streams()) {
        if (streamEnd_ > now) return;  // a packet that was withheld leaves its time empty
        std::vector<std::uint8_t> bits = EncodeStreamPacket(source_.NextStreamPacket(engineTime_));
        const double length = static_cast<double>(bits.size()) / kStreamBitsPerSecond;
        engineTime_ += length;
        const std::int64_t from = std::max({streamEnd_, heardEnd_, now - CountsOf(kLongestWait)});
        streamEnd_ = options_.pace ? from + CountsOf(length) : from;
        if (!faults_.Pass(bits, stats_)) {
            streamEnd_ = std::max(streamEnd_, now + CountsOf(kLongestWait));
            return;
        }
        ++stats_.streamPackets;
        Say(bits, from, 1.0 / kStreamBitsPerSecond);
    } else if (!idle_.IsMute() && now >= nextTalk_) {
        ++stats_.idleFrames;
        Say(idle_.NextTalk(), now, byteTime_);
        Rest(talk_.back().due, false);
    }
}

void LineDriver::Rest(std::int64_t from, bool afterReply) {
    if (!idle_.IsMute()) nextTalk_ = from + CountsOf(idle_.NextGap(afterReply));
}

void LineDriver::SendDue() {
    const std::int64_t now = line_.Now();
    SendFrom(echo_, now);
    // A reply never overtakes the echo of its request.
    if (echo_.empty() || options_.pace) SendFrom(talk_, now);
}

void LineDriver::SendFrom(Queue& queue, std::int64_t now) {
    std::array<std::uint8_t, 256> bytes;
    while (!queue.empty() && queue.front().due <= now) {
        std::size_t count = 0;
        while (count < bytes.size() && count < queue.size() && queue[count].due <= now) {
            bytes[count] = queue[count].value;
            ++count;
        }
        const std::size_t taken = line_.Write(bytes.data(), count);
        const std::size_t gone = options_.pace ? count : taken;
        stats_.unread += gone - taken;
        for (std::size_t i = 0; i < gone; ++i) {
            if (queue.front().lastOfReply) NoteReplyEnd(queue.front());
            queue.pop_front();
        }
        if (gone < count) return;
    }
}

void LineDriver::NoteReplyEnd(const Byte& byte) {
    const std::int64_t now = line_.Now();
    Rest(now, true);
    if (!options_.pace) return;
    meter_.Add(SecondsOf(now - requestStart_), SecondsOf(byte.due - requestStart_), SecondsOf(now - byte.due));
}

std::int64_t LineDriver::NextMoment(std::int64_t now) const {
    std::int64_t next = now + CountsOf(kLongestWait);
    if (talk_.empty() && Streams()) next = std::min(next, std::max(streamEnd_, now));
    if (talk_.empty() && !idle_.IsMute()) next = std::min(next, nextTalk_);
    if (!echo_.empty()) next = std::min(next, echo_.front().due);
    if (!talk_.empty()) next = std::min(next, talk_.front().due);
    // What is due and still here waits for a far end that is full.
    const bool full = (!echo_.empty() && echo_.front().due <= now) || (!talk_.empty() && talk_.front().due <= now);
    return full && !options_.pace ? std::max(next, now + CountsOf(kFullLineWait)) : next;
}

SimStats LineDriver::Stats() const {
    SimStats stats = stats_;
    meter_.Report(stats);
    return stats;
}

}  // namespace corvex
