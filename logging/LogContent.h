// What would be lost with a file whose place a log is about to take.
#pragma once

#include <string>

namespace corvex {

enum class LogContent {
    kNothing,  // no file, an empty one, or what a recording left that never came to its first record
    kRecords,  // a log with a record, or with bytes that may be a part of one
    kForeign,  // anything else: nothing that can be read as a log
};

// Looks without writing. Narrow names in the system's own code page. Any thread.
LogContent LookIntoLog(const std::string& path);

// By its extension.
bool IsLogName(const std::string& path);

// What nobody may replace without saying so: a log with records, and what is named like one but cannot be read, since
// it may be damaged.
bool HoldsLog(const std::string& path);

}  // namespace corvex
