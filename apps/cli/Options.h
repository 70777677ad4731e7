// What the arguments of each command ask for.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "apps/cli/LogOptions.h"
#include "apps/sim/SimOptions.h"

namespace corvex {

struct CheckOptions {
    std::string file;
    bool json = false;
    bool strict = false;  // errors and warnings make the command fail
};

struct ListOptions {
    std::string file;
    bool json = false;
};

struct HashOptions {
    std::vector<std::string> texts;
};

struct EvalOptions {
    std::string equation;
    std::vector<std::pair<char, double>> letters;
};

struct ConvertOptions {
    std::string input, output;
    bool force = false;  // the input itself, or a log, is replaced
};

// An engine that keeps the line's time unless told otherwise.
inline SimOptions PacedEngine() {
    SimOptions engine;
    engine.pace = true;
    return engine;
}

struct DoctorOptions {
    std::string port;
    std::string definition;
    double seconds = 5.0;
    bool json = false;
};

struct PortsOptions {
    bool json = false;
};

struct ScanOptions {
    std::string port;
    std::string definition;
    std::string items;     // patterns, as those of decode
    double seconds = 0.0;  // 0: until stopped
    bool once = false;
    bool plain = false;
    bool json = false;
    bool verbose = false;
    std::string record;     // the log to record; empty: none
    bool force = false;     // a log that holds something is replaced
    bool reconnect = true;  // a device that vanishes is waited for
    // The engine inside, in place of a port.
    bool simulate = false;
    SimOptions engine = PacedEngine();
    std::string replay;  // the log that it repeats; empty: none
};

using Options =
    std::variant<CheckOptions, ListOptions, HashOptions, EvalOptions, ConvertOptions, DoctorOptions, PortsOptions,
                 ScanOptions, InfoOptions, DecodeOptions, PlayOptions, HistogramOptions, RepairOptions>;

}  // namespace corvex
