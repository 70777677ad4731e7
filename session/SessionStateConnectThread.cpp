#include "session/ScanPolicy.h"
#include "session/SessionState.h"

namespace corvex {

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
        TellOddRate(portName);
        EnterLineState(kConnecting);
        RunScan(connect, monitor, disconnect);
        engine.port.Close();
    } else {
        DebugOutput::Print(&debug, "Unable to open port (%s)!", portName.c_str());
        calls_.portRefused(engine.port.LastError());
    }
    threadDone.Set();
    EnterLineState(kNotConnected);
    EndScan();
}

// The loop has no pause: the line's own timing paces it.
void SessionState::RunScan(const ADXObject* connect, const ADXObject* monitor, const ADXObject* disconnect) {
    if (connect != nullptr && IsFailure(engine.RunCommand(connect))) return;
    std::int32_t result = 0;
    while (monitor != nullptr && KeepsMonitoring(scanning.load(std::memory_order_relaxed), result)) {
        result = engine.RunCommand(monitor);
    }
    if (RunsDisconnect(monitor != nullptr, scanning.load(std::memory_order_relaxed))) {
        stop_.RunDisconnect(disconnect);
    }
}

// The port's own lines go to its sink, which is silent in a session; this one nobody can do without.
void SessionState::TellOddRate(const std::string& portName) {
    const std::uint32_t wanted = engine.port.baud, taken = engine.port.lineBaud;
    if (IsOddRate(wanted, taken))
        DebugOutput::Print(&debug, "%s runs at %u baud instead of %u!", portName.c_str(), taken, wanted);
}

}  // namespace corvex
