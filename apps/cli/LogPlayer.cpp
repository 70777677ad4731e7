#include "apps/cli/LogPlayer.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ostream>
#include <utility>

#include "apps/cli/DefinitionFile.h"
#include "apps/cli/LogFile.h"
#include "apps/cli/LogLoss.h"
#include "export/text/TextFormat.h"
#include "logging/LogWalk.h"

namespace corvex {

namespace {

constexpr double kLargestMs = 4294967295.0;

}  // namespace

LogPlayer::LogPlayer(SessionCalls calls) : session_(WithOwn(std::move(calls))) {}

SessionCalls LogPlayer::WithOwn(SessionCalls calls) {
    calls.setMonitorTime = [this](double seconds) { time_.store(seconds, std::memory_order_relaxed); };
    // Moved to 0 when the log is closed; a record's number is never 0.
    calls.setLogSlider = [this](std::uint32_t index) {
        if (index == 0) return;
        index_.store(index, std::memory_order_relaxed);
        played_.fetch_add(1, std::memory_order_relaxed);
    };
    calls.replyEnded = [this, next = std::move(calls.replyEnded)](const DataAcqStatus& status, PacketView reply) {
        answered_.fetch_add(1, std::memory_order_relaxed);
        if (next) next(status, reply);
    };
    calls.postMain = [this](std::uint32_t message) {
        if (message == kMessageLogStopped) stops_.fetch_add(1, std::memory_order_relaxed);
    };
    return calls;
}

bool LogPlayer::Open(const std::string& definition, const std::string& log, std::ostream& err) {
    path_ = log;
    return LoadDefinition(session_.definition, definition, err) && OpenLog(session_.log, log, err);
}

bool LogPlayer::Start(double speed, double from, std::ostream& err) {
    session_.log.SetCallback(&session_.callback);
    if (from > 0.0 && !SeekTo(from, err)) return false;
    session_.log.speed.store(static_cast<float>(speed), std::memory_order_relaxed);
    const std::uint32_t result = session_.log.StartPlayback();
    if (result == kLogSuccess) return true;
    err << "corvex-cli: " << path_ << ": " << LogErrorText(result) << '\n';
    return false;
}

// A seek ends in front of the first record that is later than its target.
bool LogPlayer::SeekTo(double from, std::ostream& err) {
    const double first = std::clamp(std::ceil(from * 1000.0), 2.0, kLargestMs);
    const std::uint32_t target = static_cast<std::uint32_t>(first) - 1;
    const std::uint32_t result = session_.log.Seek(target, kSeekTime | kSeekFromStart);
    if (result == kLogSuccess) return true;
    err << "corvex-cli: " << path_ << ": "
        << (result == kLogEndOfFile ? Printf("ends before second %g", from) : LogErrorText(result)) << '\n';
    return false;
}

void LogPlayer::Stop() {
    asked_ = true;
    session_.StopCommand();
}

// The playback thread has the stop thread started before it ends.
bool LogPlayer::Runs() const {
    return session_.log.IsPlaying() || !session_.WaitForThreads(std::chrono::milliseconds(0));
}

// A playback that ended for another reason than its end or a stop has sent no message.
void LogPlayer::Close() {
    const std::uint32_t stops = stops_.load(std::memory_order_relaxed);
    for (std::uint32_t i = 0; i < stops; ++i)
        session_.OnLogStopped();
    if (stops == 0) static_cast<void>(session_.log.Close());
}

bool LogPlayer::Report(std::ostream& err) const {
    const std::string begin = "corvex-cli: " + path_ + ": ";
    const std::uint32_t strange = played_.load(std::memory_order_relaxed) - answered_.load(std::memory_order_relaxed);
    if (!asked_) ReportLoss(err);
    if (strange != 0 && answered_.load(std::memory_order_relaxed) == 0) {
        err << begin
            << "none of its records is of a command of the definition; is it the one that it was recorded with?\n";
        return false;
    }
    if (strange != 0) err << begin << Counted(strange, "record") << " of commands that the definition does not have\n";
    if (stops_.load(std::memory_order_relaxed) != 0) return true;
    err << begin << WhyEndedEarly() << '\n';
    return false;
}

// A playback takes the records as they come. Whether each stood where it was written, and what follows the last, a walk
// over the log tells.
void LogPlayer::ReportLoss(std::ostream& err) const {
    DataLogEngine log;
    if (log.Open(path_.c_str(), kLogForLooking) != kLogSuccess) return;
    LogWalk walk(log);
    while (walk.Next()) {
    }
    const std::uint32_t read = std::min(session_.log.sampleIndex.load(std::memory_order_relaxed), walk.Records());
    const bool said = stops_.load(std::memory_order_relaxed) == 0 && walk.Result() != kLogEndOfFile;
    for (const std::string& text : {GapText(walk.Gap()), said ? "" : EndText(walk), MissingText(log.header, read)}) {
        if (!text.empty()) err << "corvex-cli: " << path_ << ": " << text << '\n';
    }
}

// A playback that meets such a record ends without a word.
std::string LogPlayer::WhyEndedEarly() const {
    DataLogEngine log;
    std::uint32_t result = log.Open(path_.c_str(), kLogForLooking);
    std::uint64_t offset = 0;
    if (result == kLogSuccess) {
        LogWalk walk(log);
        offset = log.Position();
        // A walk passes over the record that ends a playback.
        while (walk.Next() && walk.Unknown() == 0)
            offset = walk.Offset() + kLogRecordBytes + walk.Item().packedSize;
        result = walk.Unknown() != 0 ? std::uint32_t{kLogUnknownItem} : walk.Result();
    }
    const std::string end = Printf("playback ended at byte %llu", static_cast<unsigned long long>(offset));
    if (result == kLogUnknownItem) return end + ": a record of an unknown item (see corvex-cli repair)";
    return end + ": the log cannot be read";
}

}  // namespace corvex
