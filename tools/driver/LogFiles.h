// Logs made without an engine: to be played back, or to be sent by a simulated engine.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvex::test {

struct LoggedReply {
    std::string command;  // its id
    std::vector<std::uint8_t> bytes;
    std::uint32_t time = 0;  // ms
};

// The bytes of a finished log. All replies of a command are as long as its first.
std::string MakeLog(const std::vector<LoggedReply>& replies);
// A log of the 8192-baud example with a reply at each of these times, in milliseconds.
std::string MakeLog(const std::vector<std::uint32_t>& times);
// `count` replies, one each `spacing` milliseconds.
std::string MakeEvenLog(std::uint32_t count, std::uint32_t spacing);

// What the header of a log says.
struct LogHeader {
    std::uint32_t version = 0, endMark = 0, sampleCount = 0;
};
LogHeader HeaderOf(const std::string& log);

}  // namespace corvex::test
