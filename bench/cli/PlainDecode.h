#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvex {

struct PlainValue {
    std::string title, equation;  // of the letter X
    std::uint32_t offset = 0;     // in the record's data
    bool twoBytes = false;        // most significant byte first
};

// A log as CSV, written as one would on a quiet afternoon: fread each record, the textual evaluator for each value,
// fprintf for each number. Logs with one item alone; at most `records` of them. Returns the records written.
std::uint32_t DecodePlainly(const std::string& log, const std::vector<PlainValue>& values, const std::string& output,
                            std::uint32_t records);

}  // namespace corvex
