#include <utility>

#include "session/ScanPolicy.h"
#include "session/SessionState.h"

namespace corvex {

namespace {

constexpr std::uint32_t kRetryMs = 1000;

}  // namespace

// One scan, from the opening of the port to its closing. The order of the last acts is relied upon: waiters are woken
// first, then the state is shown, and only after that may a new scan begin.
void SessionState::ConnectThread(const std::string& portName) {
    threadDone.Reset();
    // Only ever set, so that it outlives the loading of a definition without the bit.
    if (definition.HasEcho()) engine.flags = DataAcqEngine::kEcho;
    const std::uint32_t baud = definition.baud;
    const ADXObject* const connect = definition.connectcmd;
    const ADXObject* const monitor = definition.monitorcmd;
    const ADXObject* const disconnect = definition.disconnectcmd;
    engine.callback = &callback;
    if (engine.OpenPort(portName.c_str(), baud)) {
        std::uint32_t toldRate = 0;
        TellOddRate(portName, toldRate);
        EnterLineState(kConnecting);
        while (RunScan(connect, monitor, disconnect) && BringDeviceBack(portName, baud))
            TellOddRate(portName, toldRate);
        engine.port.Close();
    } else {
        DebugOutput::Print(&debug, "Unable to open port (%s)!", portName.c_str());
        calls_.portRefused(engine.port.LastError());
    }
    threadDone.Set();
    EnterLineState(kNotConnected);
    EndScan();
}

// The loop has no pause: the line's own timing paces it. True when the device has gone from under it and is wanted
// back.
bool SessionState::RunScan(const ADXObject* connect, const ADXObject* monitor, const ADXObject* disconnect) {
    if (connect != nullptr && IsFailure(engine.RunCommand(connect))) return false;
    const auto isAway = [this] { return reconnects && engine.port.Vanished(); };
    std::int32_t result = 0;
    while (monitor != nullptr && KeepsMonitoring(scanning.load(std::memory_order_relaxed), result) && !isAway()) {
        result = engine.RunCommand(monitor);
    }
    if (RunsDisconnect(monitor != nullptr, scanning.load(std::memory_order_relaxed))) {
        stop_.RunDisconnect(disconnect);
        return false;
    }
    return isAway();
}

// Tries the same name until it opens; false when the scan is no longer wanted. The wait comes before each try, so that
// a port that opens and fails again is no busy loop.
bool SessionState::BringDeviceBack(const std::string& portName, std::uint32_t baud) {
    const std::string reason = engine.port.LastError();
    engine.port.Close();
    deviceAway_.store(true, std::memory_order_relaxed);
    EnterLineState(kConnecting);
    DebugOutput::Print(&debug, "%s has vanished, waiting for it", portName.c_str());
    calls_.deviceVanished(reason);
    bool isBack = false;
    while (!isBack && stop_.WaitUnlessAsked(kRetryMs) && scanning.load(std::memory_order_relaxed) == 1) {
        isBack = engine.OpenPort(portName.c_str(), baud) != 0;
    }
    deviceAway_.store(false, std::memory_order_relaxed);
    if (!isBack) return false;
    DebugOutput::Print(&debug, "%s is back", portName.c_str());
    calls_.deviceBack();
    return true;
}

// The port's own lines go to its sink, which is silent in a session; this one nobody can do without. Once for a rate.
void SessionState::TellOddRate(const std::string& portName, std::uint32_t& told) {
    const std::uint32_t wanted = engine.port.baud, taken = engine.port.lineBaud;
    if (taken == std::exchange(told, taken)) return;
    if (IsOddRate(wanted, taken))
        DebugOutput::Print(&debug, "%s runs at %u baud instead of %u!", portName.c_str(), taken, wanted);
}

}  // namespace corvex
