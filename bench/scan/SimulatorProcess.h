// A corvex-sim of its own, so that what it costs is not counted with the scan.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace corvex {

class SimulatorProcess {
public:
    // Starts the program with these arguments. PortName is empty when that failed.
    SimulatorProcess(const std::string& program, const std::vector<std::string>& arguments);
    ~SimulatorProcess();  // as Stop
    SimulatorProcess(const SimulatorProcess&) = delete;
    SimulatorProcess& operator=(const SimulatorProcess&) = delete;

    const std::string& PortName() const { return port_; }
    // Ends the simulator as Ctrl+C would; its own figures appear on the standard error.
    void Stop();

private:
    pid_t process_ = -1;
    std::string port_;
};

}  // namespace corvex
