// What a stop asks of a scan, command by command.
#pragma once

#include <atomic>
#include <cstdint>

namespace corvex {

class ADXObject;
class DataAcqEngine;

// A stop ends the connect or the monitor command at once, and none that is begun afterwards runs: the request stands in
// the engine until the next scan begins, so that it can't fall between two commands and need not be repeated. The
// disconnect command alone runs whole, since a car whose modules stay muted is worse than a slow stop; what cuts it is
// a second stop that comes while it runs, or its time.
//
// Threads: the connect thread runs the disconnect command; Ask may come from any thread; Begin from the thread that
// starts scans, while neither a scan nor the stop of one is under way. The engine outlives this.
class ScanStop {
public:
    // Milliseconds that a disconnect command has.
    static constexpr std::uint32_t kDisconnectLimit = 5000;

    explicit ScanStop(DataAcqEngine& engine) : engine_(engine) {}

    // A new scan: what was asked of the last one counts no more.
    void Begin();
    // `insists` tells a person who presses Stop from a program that is being closed: he who stops and then closes
    // wants both, and not a cut.
    void Ask(bool insists);
    // Null does nothing.
    void RunDisconnect(const ADXObject* command);
    // Waits while nobody has asked: a stop ends it within a slice of the engine's waits. False after that, and at once
    // on a machine that has no counter to wait by. Connect thread.
    bool WaitUnlessAsked(std::uint32_t milliseconds) const;

private:
    DataAcqEngine& engine_;
    std::atomic<bool> asked_{false}, disconnecting_{false};
};

}  // namespace corvex
