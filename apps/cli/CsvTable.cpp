#include "apps/cli/CsvTable.h"

#include "export/LogTime.h"
#include "export/text/TextFormat.h"

namespace corvex {

bool CsvTable::Begin(const DecodedLog& first) {
    if (!output_.IsOpen()) return false;
    if (options_.logs.size() > 1) csv_.Text("Log");
    csv_.Text(options_.time == LogTimes::kAbsolute ? "Time" : "Time (s)");
    first.columns->WriteHeader(csv_);
    csv_.EndRow();
    return true;
}

bool CsvTable::BeginLog(const DecodedLog& log) {
    name_ = Utf8Text(log.path);
    start_ = log.log.header.startTime;
    begun_ = false;
    return true;
}

void CsvTable::WriteTime(std::uint32_t timeMs) {
    if (!begun_) zero_ = timeMs;
    begun_ = true;
    if (options_.time == LogTimes::kAbsolute)
        csv_.Plain(AbsoluteTimeText(start_, timeMs));
    else
        csv_.Milliseconds(options_.time == LogTimes::kZero && timeMs >= zero_ ? timeMs - zero_ : timeMs);
}

void CsvTable::AddRow(DecodedLog& log, std::uint32_t timeMs, const DecodedRecord& record) {
    if (options_.logs.size() > 1) csv_.Text(name_);
    WriteTime(timeMs);
    const NumberForm rounded = options_.round ? NumberForm::kAsShown : NumberForm::kExact;
    log.columns->WriteRow(csv_, record, options_.text ? NumberForm::kText : rounded);
    csv_.EndRow();
}

}  // namespace corvex
