#include <thread>

#include "session/SessionState.h"

namespace corvex {

void SessionState::StartStopThread(std::uint32_t flags) {
    if ((flags & kStopScan) != 0) {
        const std::lock_guard lock(scanLock_);
        ++scanStopsRunning_;
    }
    if (workers_.Start([this, flags] { StopThread(flags); })) return;
    DebugOutput::Print(&debug, "Unable to start a thread for the stop!");
    if ((flags & kStopScan) == 0) return;
    const std::lock_guard lock(scanLock_);
    --scanStopsRunning_;
}

void SessionState::StopThread(std::uint32_t flags) {
    if ((flags & kStopScan) != 0) StopScan();
    if ((flags & kStopLog) != 0) StopLog();
    if ((flags & kStopWindow) != 0) calls_.postMain(kMessageDestroyWindow);
}

void SessionState::StopScan() {
    scanning.store(0, std::memory_order_relaxed);
    engine.RequestStop();
    threadDone.Wait();
    threadDone.Set();  // the wait took the signal, which says that no connect thread runs
    {
        const std::lock_guard lock(scanLock_);
        --scanStopsRunning_;
    }
    calls_.postMain(kMessageScanStopped);
}

void SessionState::StopLog() {
    const std::uint32_t state = log.State();
    if (state == kLogRecording) {
        static_cast<void>(log.StopRecording());  // a log that can't be ended well is closed all the same
    } else if (state == kLogPlaying) {
        static_cast<void>(log.RequestStop());
        // Spins: the playback thread leaves its wait within a millisecond.
        while (log.IsPlaying())
            std::this_thread::yield();
    }
    calls_.postMain(kMessageLogStopped);
}

}  // namespace corvex
