// A simulated engine in a thread of its own, for programs that want one inside.
#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <thread>

#include "apps/sim/SimLine.h"
#include "apps/sim/SimOptions.h"

namespace corvex {

class ADXDefinition;
class LineDriver;

// One owner starts and stops it; PortName and IsRunning may be asked by any thread while it runs. The definition is
// read during Start alone, and nothing in it is changed, so the same one may serve a scan at the same time.
class SimulatorSession {
public:
    SimulatorSession();
    ~SimulatorSession();  // stops
    SimulatorSession(const SimulatorSession&) = delete;
    SimulatorSession& operator=(const SimulatorSession&) = delete;

    // Starts on a line of its own choosing: a pseudo-terminal, which Windows does not have. Empty on failure, with a
    // sentence in `error`; otherwise the name to open, which is there until Stop.
    std::string Start(const ADXDefinition& definition, const SimOptions& options, std::string& error);
    // Starts on a line that is open.
    void Start(const ADXDefinition& definition, const SimOptions& options, std::unique_ptr<ISimLine> line);

    // Ends the thread, within some 20 ms, and closes the line. Does nothing when not started.
    void Stop();
    // False once the run has ended by itself: its time was over, or the device was unplugged.
    bool IsRunning() const { return running_.load(); }
    std::string PortName() const { return name_; }
    // What happened; whole after Stop.
    SimStats Stats() const { return stats_; }

private:
    std::unique_ptr<ISimLine> line_;
    std::unique_ptr<LineDriver> driver_;
    std::string name_;
    std::atomic<bool> stop_{false}, running_{false};
    std::thread thread_;
    SimStats stats_;
};

}  // namespace corvex
