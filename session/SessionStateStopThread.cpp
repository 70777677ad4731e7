#include <thread>

#include "session/SessionState.h"

namespace corvex {

void SessionState::StartStopThread(std::uint32_t flags) {
    if ((flags & kStopWindow) != 0) closes_.store(true, std::memory_order_relaxed);
    if ((flags & kStopLog) != 0) logStops_.fetch_add(1, std::memory_order_acq_rel);
    if ((flags & kStopScan) != 0) {
        const std::lock_guard lock(scanLock_);
        ++scanStopsRunning_;
    }
    if (workers_.Start([this, flags] { StopThread(flags); })) return;
    DebugOutput::Print(&debug, "Unable to start a thread for the stop!");
    if ((flags & kStopLog) != 0) logStops_.fetch_sub(1, std::memory_order_acq_rel);
    if ((flags & kStopScan) == 0) return;
    const std::lock_guard lock(scanLock_);
    --scanStopsRunning_;
}

void SessionState::StopThread(std::uint32_t flags) {
    if ((flags & kStopScan) != 0) StopScan(flags == kStopScan);
    if ((flags & kStopLog) != 0) StopLog();
    if ((flags & kStopWindow) != 0) calls_.postMain(kMessageDestroyWindow);
}

void SessionState::StopScan(bool insists) {
    scanning.store(0, std::memory_order_relaxed);
    stop_.Ask(insists);
    threadDone.Wait();
    threadDone.Set();  // the wait took the signal, which says that no connect thread runs
    {
        const std::lock_guard lock(scanLock_);
        --scanStopsRunning_;
    }
    calls_.postMain(kMessageScanStopped);
}

// The playback thread is waited for in every state: a pause may still be on its way, and what the thread delivers last
// must not come after the log is closed. A recording's file can be moved when the disk has it.
void SessionState::StopLog() {
    if (log.State() == kLogRecording) {
        static_cast<void>(log.StopRecording());  // a log that can't be ended well is closed all the same
    }
    static_cast<void>(log.RequestStop());
    // Spins: the playback thread leaves its wait within a millisecond.
    while (log.IsPlaying())
        std::this_thread::yield();
    log.WaitForSync();
    calls_.postMain(kMessageLogStopped);
}

}  // namespace corvex
