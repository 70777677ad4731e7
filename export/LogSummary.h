// What a log holds, counted in one walk.
#pragma once

#include <cstdint>
#include <vector>

#include "logging/DataLogEngine.h"

namespace corvex {

// Times in milliseconds of the log. Remembers intervals, not records.
struct LogSummary {
    // A gap is longer than this and than four times the median interval.
    static constexpr std::uint32_t kShortestGap = 1000;
    static constexpr std::uint32_t kGapFactor = 4;

    struct Item {
        LogItemFields fields;
        std::uint32_t records = 0;
        std::uint32_t firstMs = 0, lastMs = 0;  // of its records
    };
    struct Gap {
        std::uint32_t beginMs = 0, lengthMs = 0;
    };

    LogHeader header;
    std::vector<Item> items;
    std::vector<Gap> gaps;                   // in file order
    std::uint32_t medianMs = 0;              // of the intervals between records; the longest counted is 65535
    std::uint32_t records = 0, unknown = 0;  // readable; passed over
    std::uint32_t firstMs = 0, lastMs = 0;
    std::uint32_t result = 0;  // that ended the reading
    std::uint64_t fileSize = 0;
    std::uint64_t gap = 0;   // bytes in front of the first record
    std::uint64_t left = 0;  // bytes from the place where reading ended
    bool damaged = false;    // what stands there is more than a record that was cut short
};

// The log is open for looking and has not been read yet.
LogSummary SummarizeLog(DataLogEngine& log);

// Records a second, from the first to the last of `records`; 0.0 where that says nothing.
double RecordRate(std::uint32_t records, std::uint32_t firstMs, std::uint32_t lastMs);

}  // namespace corvex
