// The values and bits of a definition as rows of a table that follows the line.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "session/diagnosis/ReplyEvent.h"

namespace corvex {

class ADXDefinition;
class ADXObject;

struct LiveRow {
    std::string title, value, units;  // UTF-8, one row each
    bool alarm = false;
    std::uint32_t colour = 0;  // 0x00BBGGRR, of the alarm
    double age = -1.0;         // seconds since the row's command last answered; negative: never
};

// Reads items from their last raw words, on the one thread that calls it. The definition outlives the table and keeps
// its objects.
class LiveTable {
public:
    explicit LiveTable(const ADXDefinition& definition, const std::string& patterns = "");

    // Remembers which command answered, and when.
    void Add(const ReplyEvent& event);
    // One row for each value and bitmask that matches the patterns (export/ItemPattern.h) in the order of the
    // definition, as of `now` (seconds since the scan began).
    std::vector<LiveRow> Rows(double now) const;

private:
    const ADXDefinition& definition_;
    std::vector<ADXObject*> items_;
    std::unordered_map<std::uint32_t, double> answered_;  // by the command's hash; 0 for any command
};

}  // namespace corvex
