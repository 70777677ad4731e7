// Counts the replies that the Output tab tells of.
#pragma once

#include <string>
#include <vector>

namespace corvex::test {

struct ReplyCounts {
    int good = 0, bad = 0;
    int badBeforeGood = 0;  // before the first good one, while nobody is connected yet
    int All() const { return good + bad; }
};

inline ReplyCounts CountReplies(const std::vector<std::string>& lines) {
    ReplyCounts counts;
    for (const std::string& line : lines) {
        if (line.find("Command/Reply Success") != std::string::npos) ++counts.good;
        if (line.find("SEND COMMAND FAILURE") == std::string::npos) continue;
        ++counts.bad;
        if (counts.good == 0) ++counts.badBeforeGood;
    }
    return counts;
}

}  // namespace corvex::test
