// One run of corvex-cli decode.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <memory>

#include "apps/cli/ExitCode.h"
#include "apps/cli/LogOptions.h"
#include "definition/ADXDefinition.h"
#include "export/ColumnSet.h"
#include "logging/DataLogEngine.h"

namespace corvex {

class ConsoleStop;
class CsvWriter;
class LogWalk;
class TextOutput;

// Main thread.
class DecodeRun {
public:
    DecodeRun(const DecodeOptions& options, std::ostream& out, std::ostream& err)
        : options_(options), out_(out), err_(err) {}
    ExitCode Run();

private:
    bool Prepare();
    bool WriteAll(TextOutput& output);
    bool WriteRows(CsvWriter& csv, LogWalk& walk, const ConsoleStop& stop);
    void WriteRecord(CsvWriter& csv, LogWalk& walk);
    bool IsAsked(std::uint32_t timeMs) const;
    bool Complain(const char* what);
    void Report(const LogWalk& walk);

    const DecodeOptions& options_;
    std::ostream& out_;
    std::ostream& err_;
    ADXDefinition definition_;
    DataLogEngine log_;
    std::unique_ptr<ColumnSet> columns_;
    std::map<std::uint32_t, std::uint32_t> strangers_;  // records by command that the definition does not have
};

}  // namespace corvex
