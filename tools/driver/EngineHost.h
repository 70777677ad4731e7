// Asks the native side for simulated engines behind the COM ports; see tools/with-engines.py.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex::test {

// One request at a time, each over a connection of its own. A request that fails throws std::runtime_error with the
// reason.
class EngineHost {
public:
    EngineHost();
    ~EngineHost();
    EngineHost(const EngineHost&) = delete;
    EngineHost& operator=(const EngineHost&) = delete;

    // An engine with the options of the simulator behind the port, in place of one that is there. Without a definition
    // among them it is the 8192-baud example. Paths are the host's.
    void Start(std::vector<std::string> options = {});
    // Ends it. What it counted, as JSON.
    std::string Stop();
    // The device vanishes under whoever has it open.
    void Unplug();

    // Saves what the screen shows there, as PNG. The file is named as the host knows it.
    void TakePicture(const std::string& file, const RECT& place);
    // Seconds that the processes with this text in their command lines have spent on processors.
    double ProcessorTimeOf(const std::string& text) const;

private:
    std::string Request(const std::string& line) const;
};

// The port that this test program has for itself: $CORVEX_TEST_PORT, or COM1.
std::string TestPort();

// How the host of Wine names this file, which need not be there. Throws std::runtime_error elsewhere.
std::string HostPath(const std::string& file);

// A number of the JSON that Stop gives.
std::uint64_t CountIn(const std::string& json, const std::string& name);

}  // namespace corvex::test
