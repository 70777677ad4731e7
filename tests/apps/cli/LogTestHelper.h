// Logs and definitions for the tests of the commands that read logs.
#pragma once

#include <string>
#include <vector>

#include "tests/apps/cli/ToolRunner.h"
#include "tests/checking/CheckTestHelper.h"
#include "tests/support/LogBytes.h"

namespace corvex {

// Runs the tool inside this process.
ToolResult RunInside(const Words& args);

inline constexpr std::uint32_t kPollHash = 0xA6607299;    // POLL of DefinitionWith
inline constexpr std::uint32_t kStreamHash = 0xFE43497D;  // STREAM

// The header and table of a log with one item for each id; all replies 24 bytes, as POLL asks for.
test::LogBytes BeginLog(const std::vector<std::uint32_t>& commandIds);

// A reply of POLL whose decoded part begins with these bytes.
test::Bytes PollReply(const test::Bytes& packet);

// The bytes as a file of its own.
class LogTempFile : public TempFile {
public:
    explicit LogTempFile(const test::LogBytes& log)
        : TempFile(std::string(log.bytes.begin(), log.bytes.end()), ".xdl") {}
};

std::string ReadFile(const std::string& path);

// A definition of POLL and of STREAM, a 160-baud stream of 20 bytes.
std::string StreamDefinition(const std::string& objects);

}  // namespace corvex
