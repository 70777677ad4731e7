// Logs of the 8192-baud example, made without an engine.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvex::test {

// The bytes of a finished log with a reply at each of these times, in milliseconds.
std::string MakeLog(const std::vector<std::uint32_t>& times);
// `count` replies, one each `spacing` milliseconds.
std::string MakeEvenLog(std::uint32_t count, std::uint32_t spacing);

// What the header of a log says.
struct LogHeader {
    std::uint32_t version = 0, endMark = 0, sampleCount = 0;
};
LogHeader HeaderOf(const std::string& log);

}  // namespace corvex::test
