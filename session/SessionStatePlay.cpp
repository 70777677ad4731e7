#include "session/LogMatch.h"
#include "session/SessionState.h"

namespace corvex {

// A log is opened, and a paused one goes on, only when no thread of an earlier playback is left.
void SessionState::PlayCommand() {
    if (IsRefused("Play")) return;
    const std::uint32_t state = log.State();
    const bool paused = connectionState.load(std::memory_order_relaxed) == kLogPaused;
    if (IsLogEnding()) {
        wishes_.Add(LogWish::kPlay);
    } else if (state == kLogPlaying) {
        // From its beginning: the log is closed first.
        StartStopThread(kStopLog);
        wishes_.Add(LogWish::kPlay);
    } else if (log.IsPlaying()) {
        wishes_.Add(LogWish::kPlay);
    } else if (state == kLogReady && paused) {
        Resume();
    } else {
        OpenLogAndPlay();
    }
}

void SessionState::Resume() {
    if (log.StartPlayback() != kLogSuccess) {
        DebugOutput::Print(&debug, "Playback could not go on");
    } else {
        DebugOutput::Print(&debug, "Playback unpaused");
    }
    calls_.refreshButtons();
}

void SessionState::OpenLogAndPlay() {
    const float chosen = log.speed.load(std::memory_order_relaxed);
    log.SetCallback(&callback);
    const std::uint32_t error = log.Open(settings.lastxdlpath, looksAtLogs ? kLogForLooking : kLogForReading);
    if (error != kLogSuccess) {
        DebugOutput::Print(&debug, "Could not open %s, error 0x%X", settings.lastxdlpath, error);
        return;
    }
    log.speed.store(chosen, std::memory_order_relaxed);
    calls_.clearMonitors();
    calls_.setLogRange(log.header.sampleCount);
    const std::string mismatch = WhyLogIsNotShown(log, definition);
    static_cast<void>(log.StartPlayback());
    DebugOutput::Print(&debug, "Playing %s", settings.lastxdlpath);
    if (!mismatch.empty()) DebugOutput::Print(&debug, "%s", mismatch.c_str());
    calls_.refreshButtons();
}

// The state of the connection, since the status text shows both.
void SessionState::EnterPause() {
    static_cast<void>(log.RequestStop());
    EnterState(kLogPaused);
}

void SessionState::PauseCommand() {
    if (log.State() == kLogPlaying) {
        EnterPause();
        DebugOutput::Print(&debug, "Playback paused");
    }
    calls_.refreshButtons();
}

// A log that is ending plays no more, whatever its state still says; and a playback that is to come is taken back.
void SessionState::PlayPauseCommand() {
    if (log.State() == kLogPlaying && !IsLogEnding()) {
        PauseCommand();
    } else if (!wishes_.TakeBack(LogWish::kPlay)) {
        PlayCommand();
    }
}

}  // namespace corvex
