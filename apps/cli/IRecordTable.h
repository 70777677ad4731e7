// Where the records of logs go as rows.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "definition/ADXDefinition.h"
#include "export/ColumnSet.h"
#include "logging/DataLogEngine.h"

namespace corvex {

struct DecodedRecord;

// One log with a definition of its own, since what a record leaves in the raw words is not for the next log.
struct DecodedLog {
    std::string path;
    ADXDefinition definition;
    DataLogEngine log;
    std::unique_ptr<ColumnSet> columns;
};

// The calls come in this order: Begin, then for each log BeginLog and its rows, then Finish. One thread.
class IRecordTable {
public:
    virtual ~IRecordTable() = default;
    // `first` is the first of the logs; all have the same columns.
    [[nodiscard]] virtual bool Begin(const DecodedLog& first) = 0;
    [[nodiscard]] virtual bool BeginLog(const DecodedLog& log) = 0;
    // A failure is kept until Flush.
    virtual void AddRow(DecodedLog& log, std::uint32_t timeMs, const DecodedRecord& record) = 0;
    virtual bool Good() const = 0;
    [[nodiscard]] virtual bool Flush() = 0;
    // Everything takes its place.
    [[nodiscard]] virtual bool Finish() = 0;
    // Of what failed, in words; may be empty.
    virtual std::string Reason() const = 0;
};

}  // namespace corvex
