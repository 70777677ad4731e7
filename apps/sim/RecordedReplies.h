// What a log holds of each command's replies, for a simulated engine that repeats them.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "logging/LogItem.h"

namespace corvex {

class ADXDefinition;
struct SimOptions;

// Read once, constant afterwards, any thread. Takes the memory that the log takes on disk.
class RecordedReplies {
public:
    // Reads a log, which is never written to, up to its last whole record. False with one sentence in `error`, that
    // there is no record in it among the reasons.
    bool Read(const std::string& path, std::string& error);

    // Whether the log has a reply for any of the definition's commands.
    bool Serves(const ADXDefinition& definition) const;

    // Replies of the command with this id hash.
    std::size_t Count(std::uint32_t command) const;
    // The n-th of them in the order of the log, expanded; n below Count.
    std::vector<std::uint8_t> Reply(std::uint32_t command, std::size_t n) const;

private:
    struct Record {
        std::size_t item, offset;  // its packed bytes
    };

    std::vector<LogItem> items_;
    std::vector<std::uint8_t> packed_;
    std::unordered_map<std::uint32_t, std::vector<Record>> records_;  // by command
    std::uint64_t fileSize_ = 0;
};

// Makes an engine repeat a log. False with one sentence in `error`, when the log is of another definition, too.
bool LoadRecording(const std::string& path, const ADXDefinition& definition, SimOptions& options, std::string& error);

}  // namespace corvex
