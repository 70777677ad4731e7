// Where one log ends and the next begins: what is refused, what is remembered, and when that is carried out.
#include <string>

#include "session/Colours.h"
#include "session/SessionState.h"

namespace corvex {

namespace {

constexpr std::uint32_t kRefusalFlashMs = 2000;

}  // namespace

// While a recording is saved a dialog may be open, and the scratch file still is the recording.
bool SessionState::IsLogEnding() const {
    return IsStoppingLog() || saves_ != Saving::kNot;
}

// A key that is held down asks many times a second, and is answered once.
bool SessionState::IsRefused(const char* command) {
    if (closes_.load(std::memory_order_relaxed)) return true;
    if (log.State() != kLogRecording) return false;
    const std::string line = std::string(command) + " does nothing while a recording runs: stop it first";
    if (refusals_.IsNew(line)) Say(line, "Stop the recording first", kRed);
    return true;
}

void SessionState::Say(const std::string& line, const char* flash, std::uint32_t backColour) {
    DebugOutput::Print(&debug, "%s", line.c_str());
    calls_.flash(flash, kBlack, backColour, kRefusalFlashMs);
}

void SessionState::OnLogStopped() {
    const std::uint32_t before = logStops_.load(std::memory_order_acquire);
    if (before == 0) return;
    logStops_.fetch_sub(1, std::memory_order_acq_rel);
    if (before > 1) return;               // the message of the last stop closes the log
    if (saves_ == Saving::kAsks) return;  // the answer goes on with it
    if (saves_ == Saving::kWaits) return FinishSaving();
    CloseLog();
    RunWishes();
}

void SessionState::OnPlaybackRests() {
    if (!IsLogEnding()) RunWishes();
}

void SessionState::RunWishes() {
    for (const LogWish wish : wishes_.TakeAll()) {
        if (wish == LogWish::kPlay) {
            PlayCommand();
        } else {
            RecordCommand();
        }
    }
}

void SessionState::CloseLog() {
    static_cast<void>(log.Close());
    DebugOutput::Print(&debug, "Playback stopped");  // of a recording that the end of the program has ended, too
    LeaveLog();
    calls_.setLogSlider(0);
    calls_.refreshStatus();
    calls_.refreshButtons();
}

// Back to the line. A scan that goes on has to show by a reply that it still hears something.
void SessionState::LeaveLog() {
    {
        const std::lock_guard lock(scanLock_);
        const bool scans = connectRuns_ && scanning.load(std::memory_order_relaxed) != 0;
        connectionState.store(scans ? kConnecting : kNotConnected, std::memory_order_relaxed);
    }
    RefreshAll();
}

}  // namespace corvex
