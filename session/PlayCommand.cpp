#include "session/SessionState.h"

namespace corvex {

// A playback that cannot be started yet, since the thread of the one before has not ended, fails without a word.
void SessionState::PlayCommand() {
    const bool paused = connectionState.load(std::memory_order_relaxed) == kLogPaused;
    if (log.State() == kLogReady && paused) {
        static_cast<void>(log.StartPlayback());
        DebugOutput::Print(&debug, "Playback unpaused");
        calls_.refreshButtons();
        return;
    }
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
    static_cast<void>(log.StartPlayback());
    DebugOutput::Print(&debug, "Playing %s", settings.lastxdlpath);
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

void SessionState::PlayPauseCommand() {
    if (log.State() == kLogPlaying) {
        PauseCommand();
    } else {
        PlayCommand();
    }
}

}  // namespace corvex
