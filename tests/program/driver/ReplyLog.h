// Logs of any definition, made without an engine: to be played back, or to be sent by a simulated engine.
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
std::string MakeReplyLog(const std::vector<LoggedReply>& replies);

// The id hash of an object of a definition, as files have it: "0xA6607299".
std::string HashText(const std::string& id);

}  // namespace corvex::test
