// What the arguments of the commands for logs ask for. Seconds are those of the log; an end that is not given is at
// infinity.
#pragma once

#include <limits>
#include <string>
#include <vector>

namespace corvex {

struct InfoOptions {
    std::string log;
    std::string definition;  // empty: none
    bool human = false;
    bool json = false;  // neither: for a person when one watches
};

struct DecodeOptions {
    std::string log;
    std::string definition;
    std::string output = "-";  // "-": standard output
    std::string items;         // pattern; empty: all
    bool force = false;        // an input, or a log, is replaced
    bool text = false;
    double from = 0.0;
    double to = std::numeric_limits<double>::infinity();
};

struct PlayOptions {
    std::string log;
    std::string definition;
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
    std::vector<std::string> views;  // of kHistogramViews, in the order asked for; empty: the default
    bool csv = false;
};

inline constexpr const char* kHistogramViews[] = {"last",        "average", "deviation", "count", "average-total",
                                                  "count-total", "minimum", "maximum",   "range"};

struct RepairOptions {
    std::string input, output;
    bool force = false;  // an output that holds something is replaced
};

}  // namespace corvex
