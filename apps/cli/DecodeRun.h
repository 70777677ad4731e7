// One run of corvex-cli decode.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>

#include "apps/cli/ExitCode.h"
#include "apps/cli/IRecordTable.h"
#include "apps/cli/LogOptions.h"

namespace corvex {

class ConsoleStop;
class LogWalk;

// Main thread.
class DecodeRun {
public:
    DecodeRun(const DecodeOptions& options, std::ostream& out, std::ostream& err)
        : options_(options), out_(out), err_(err) {}
    ExitCode Run();

private:
    bool Prepare();
    bool WriteAll(const ConsoleStop& stop);
    bool WriteLog(DecodedLog& log, const ConsoleStop& stop);
    bool WriteRows(DecodedLog& log, LogWalk& walk, const ConsoleStop& stop);
    void WriteRecord(DecodedLog& log, LogWalk& walk);
    bool IsAsked(std::uint32_t timeMs) const;
    bool Complain(const std::string& what);
    bool CannotWrite();
    bool ComplainOf(const DecodedLog& log, const std::string& what);
    bool Report(const DecodedLog& log, const LogWalk& walk);

    const DecodeOptions& options_;
    std::ostream& out_;
    std::ostream& err_;
    std::unique_ptr<IRecordTable> table_;
    std::unique_ptr<DecodedLog> first_;                 // opened for looking, until it is written
    std::map<std::uint32_t, std::uint32_t> strangers_;  // records by command that the definition does not have
    std::uint32_t rows_ = 0;                            // of the log in hand
    std::uint64_t allrows_ = 0;
    bool enough_ = false;  // nobody reads the output any more
    bool late_ = false;    // a log had no row, as all its records are beside the seconds asked for
};

}  // namespace corvex
