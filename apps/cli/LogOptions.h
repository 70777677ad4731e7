// What the arguments of the commands for logs ask for. Seconds are those of the log; an end that is not given is at
// infinity.
#pragma once

#include <limits>
#include <string>
#include <vector>

namespace corvex {

struct InfoOptions {
    std::vector<std::string> logs;
    std::string definition;  // empty: none
    bool human = false;
    bool json = false;  // neither: for a person when one watches
};

enum class LogTimes {
    kLog,       // seconds of the log
    kZero,      // seconds since the log's first row
    kAbsolute,  // date and time of day
};

// Patterns of items stand in lines, and in each line between commas.
struct DecodeOptions {
    std::vector<std::string> logs;
    std::string definition;
    std::string output = "-";  // "-": standard output
    std::string items;         // patterns; empty: all
    bool force = false;        // an input, or a log, is replaced
    bool database = false;     // `output` is one, in place of CSV
    bool text = false;
    bool round = false;  // numbers with as many digits as the program shows
    LogTimes time = LogTimes::kLog;
    double from = 0.0;
    double to = std::numeric_limits<double>::infinity();
};

struct PlayOptions {
    std::string log;
    std::string definition;
    std::string items;   // as above
    double speed = 1.0;  // 0.01 and less: as fast as it goes
    double from = 0.0;
    bool plain = false;
    bool json = false;
    bool verbose = false;
};

struct HistogramOptions {
    std::string log;
    std::string definition;
    std::string id;                  // empty: all histograms
    std::string items;               // as above, of histograms
    std::vector<std::string> views;  // of kHistogramViews, in the order asked for; empty: the default
    bool csv = false;
};

inline constexpr const char* kHistogramViews[] = {"last",        "average", "deviation", "count", "average-total",
                                                  "count-total", "minimum", "maximum",   "range"};

struct RepairOptions {
    std::vector<std::string> inputs;
    std::string output;  // empty: into `folder`, under the inputs' own names
    std::string folder;
    bool force = false;  // an output that holds something is replaced
};

}  // namespace corvex
