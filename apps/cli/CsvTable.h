// Records as comma-separated values.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>

#include "apps/cli/IRecordTable.h"
#include "apps/cli/LogOptions.h"
#include "apps/cli/TextOutput.h"
#include "export/CsvWriter.h"

namespace corvex {

// One row for each record: its time, then one field for each column. Of several logs the name stands in front.
class CsvTable : public IRecordTable {
public:
    // The options and the stream outlive the table.
    CsvTable(const DecodeOptions& options, std::ostream& out)
        : options_(options), output_(options.output, out), csv_(output_) {}

    bool Begin(const DecodedLog& first) override;
    bool BeginLog(const DecodedLog& log) override;
    void AddRow(DecodedLog& log, std::uint32_t timeMs, const DecodedRecord& record) override;
    bool Good() const override { return csv_.Good(); }
    bool Flush() override { return csv_.Flush(); }
    bool Finish() override { return csv_.Flush() && output_.Finish(); }
    std::string Reason() const override { return output_.Reason(); }

private:
    void WriteTime(std::uint32_t timeMs);

    const DecodeOptions& options_;
    TextOutput output_;
    CsvWriter csv_;
    std::string name_;
    LocalTime start_ = {};
    bool begun_ = false;      // the log has a row
    std::uint32_t zero_ = 0;  // the time of that row
};

}  // namespace corvex
