#include "session/SessionState.h"

#include <utility>

#include "platform/FileMove.h"
#include "session/ScratchLog.h"

namespace corvex {

SessionState::SessionState(SessionCalls calls, ISerialPlatform& serial, IFileSystem& logFiles)
    : engine(serial), callback(*this), log(logFiles), calls_(WithoutGaps(WithCarrier(std::move(calls)))) {
    // What may be pressed changes once more with the end of the thread, and nobody else knows when that is.
    log.onRest = [this] {
        RefreshAll();
        calls_.postMain(kMessagePlaybackRests);
    };
}

SessionCalls SessionState::WithCarrier(SessionCalls calls) {
    if (calls.carrySample) return calls;
    calls.carrySample = [this](const PublishedSample& sample) {
        views.Read(sample);
        views.Draw();
    };
    return calls;
}

SessionState::~SessionState() {
    scanning.store(0, std::memory_order_relaxed);
    stop_.Ask(false);
    // The playback thread first: it may still start a stop thread, and it calls what is gone before the log goes.
    static_cast<void>(log.RequestStop());
    log.WaitForPlayback();
    workers_.Wait();
    // The user has given a name, and the message that the disk has it all came too late for anybody to take it.
    if (savedAs_ && saves_ == Saving::kWaits) static_cast<void>(MoveToNewName(ScratchLogPath(), *savedAs_));
    splash.reset();
}

void SessionState::ToggleScan() {
    if (!BeginScan()) {
        StartStopThread(kStopScan);
        return;
    }
    if (debug.edit != nullptr) debug.edit->Clear();
    errorCount.store(0, std::memory_order_relaxed);
    timer.Restart();
    calls_.clearMonitors();
    calls_.scanBegins();
    // The connect thread resets the event as well; done here, a stop that comes before the thread is awake waits too.
    threadDone.Reset();
    if (workers_.Start([this, port = std::string(settings.comport)] { ConnectThread(port); })) return;
    DebugOutput::Print(&debug, "Unable to start a thread for the scan!");
    threadDone.Set();
    EndScan();
}

// A second connect thread would share the engine with the first, and the signal that an unfinished stop sets again
// would pass for the new scan's end. So `scanning` alone, which a stop clears early, does not decide.
bool SessionState::BeginScan() {
    const std::lock_guard lock(scanLock_);
    if (scanning.load(std::memory_order_relaxed) != 0 || connectRuns_ || scanStopsRunning_ != 0) return false;
    stop_.Begin();
    scanning.store(1, std::memory_order_relaxed);
    connectRuns_ = true;
    return true;
}

// A log that was closed since the line's end was told may have brought the state of a running scan back.
void SessionState::EndScan() {
    bool mended = false;
    {
        const std::lock_guard lock(scanLock_);
        connectRuns_ = false;
        for (std::uint32_t from : {kConnecting, kConnected})
            mended |= connectionState.compare_exchange_strong(from, kNotConnected, std::memory_order_relaxed);
        scanning.store(0, std::memory_order_release);
    }
    if (mended) RefreshAll();
}

void SessionState::RefreshAll() {
    calls_.refreshStatus();
    calls_.refreshButtons();
}

void SessionState::EnterState(ConnectionState state) {
    connectionState.store(state, std::memory_order_relaxed);
    RefreshAll();
}

void SessionState::EnterLineState(ConnectionState state) {
    std::uint32_t now = connectionState.load(std::memory_order_relaxed);
    while (now != kLogPaused && !connectionState.compare_exchange_weak(now, state, std::memory_order_relaxed)) {
    }
    RefreshAll();
}

void SessionState::Connect() {
    std::uint32_t connecting = kConnecting;
    if (deviceAway_.load(std::memory_order_relaxed)) return;
    if (connectionState.compare_exchange_strong(connecting, kConnected, std::memory_order_relaxed)) RefreshAll();
}

void SessionState::PublishSample(double t, PacketView packet, std::uint32_t commandId, std::uint32_t to) {
    const std::uint32_t wanted = views.Wanted() & to;
    if (wanted != 0) calls_.carrySample({wanted, t, packet, commandId, CopyLastPacket()});
}

LastPacket SessionState::CopyLastPacket() const {
    const std::lock_guard lock(packetLock_);
    return lastPacket_;
}

void SessionState::StoreLastPacket(const LastPacket& packet) {
    const std::lock_guard lock(packetLock_);
    lastPacket_ = packet;
}

float SessionState::SampleRate() {
    const std::lock_guard lock(rateLock_);
    return timer.Rate();
}

}  // namespace corvex
