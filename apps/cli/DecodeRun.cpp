#include "apps/cli/DecodeRun.h"

#include <algorithm>
#include <ostream>
#include <utility>
#include <vector>

#include "apps/cli/CsvTable.h"
#include "apps/cli/DefinitionFile.h"
#include "apps/cli/LogFile.h"
#include "apps/cli/LogLoss.h"
#include "apps/cli/OutputGuard.h"
#include "apps/cli/ProgressBar.h"
#include "apps/cli/SqliteTable.h"
#include "apps/cli/WriteFailure.h"
#include "export/LogTime.h"
#include "export/RecordDecoder.h"
#include "export/text/TextFormat.h"
#include "logging/LogWalk.h"
#include "platform/ConsoleStop.h"
#include "platform/Terminal.h"

namespace corvex {

namespace {

// Records between two looks at the clock and at Ctrl+C.
constexpr std::uint32_t kRecordsPerLook = 1024;
constexpr std::size_t kItemsNamed = 5;

bool OpenDecodedLog(DecodedLog& log, const DecodeOptions& options, const std::string& path, std::ostream& err) {
    log.path = path;
    if (!LoadDefinition(log.definition, options.definition, err)) return false;
    log.columns = std::make_unique<ColumnSet>(log.definition, options.items);
    return OpenLog(log.log, path, err);
}

}  // namespace

ExitCode DecodeRun::Run() {
    if (!Prepare()) return kExitFailure;
    // A reader that goes away, like head, then makes a write fail and does not end the program.
    const ConsoleStop stop;
    if (options_.database)
        table_ = MakeSqliteTable(options_.output);
    else
        table_ = std::make_unique<CsvTable>(options_, out_);
    if (table_ == nullptr) {
        err_ << "corvex-cli: this build has no SQLite; write CSV with -o and import that\n";
        return kExitFailure;
    }
    return WriteAll(stop) || enough_ ? kExitSuccess : kExitFailure;
}

// All that can be told before anything is written.
bool DecodeRun::Prepare() {
    std::vector<std::string> inputs{options_.definition};
    for (const std::string& path : options_.logs) {
        auto opened = std::make_unique<DecodedLog>();
        DecodedLog& log = *opened;
        if (!OpenDecodedLog(log, options_, path, err_)) return false;
        if (!CheckItems(log.definition, options_.items, options_.definition, err_)) return false;
        if (options_.time == LogTimes::kAbsolute && !IsDate(log.log.header.startTime))
            return ComplainOf(log, "its header has no date, so --time absolute cannot be told");
        inputs.push_back(path);
        if (first_ == nullptr) first_ = std::move(opened);
    }
    return MayReplace(options_.output, inputs, options_.force, err_);
}

bool DecodeRun::Complain(const std::string& what) {
    err_ << "corvex-cli: " << (options_.output == "-" ? "the output" : options_.output) << what << '\n';
    return false;
}

// Whoever reads it had enough, as head has: that is nothing to complain of.
bool DecodeRun::CannotWrite() {
    enough_ = options_.output == "-" && OutputReaderIsGone();
    return !enough_ && Complain(CannotBeWritten(table_->Reason()));
}

bool DecodeRun::ComplainOf(const DecodedLog& log, const std::string& what) {
    err_ << "corvex-cli: " << log.path << ": " << what << '\n';
    return false;
}

bool DecodeRun::WriteAll(const ConsoleStop& stop) {
    bool begun = false;
    for (const std::string& path : options_.logs) {
        // One at a time, as a definition may be large.
        std::unique_ptr<DecodedLog> opened = std::move(first_);
        if (opened == nullptr) {
            opened = std::make_unique<DecodedLog>();
            if (!OpenDecodedLog(*opened, options_, path, err_)) return false;
        }
        DecodedLog& log = *opened;
        if (!begun && !table_->Begin(log)) return CannotWrite();
        begun = true;
        if (!WriteLog(log, stop)) return false;
    }
    if (late_ && allrows_ == 0) {
        err_ << "corvex-cli: no record lies in the seconds asked for; see corvex-cli info for how long a log is\n";
        return false;
    }
    return table_->Finish() || CannotWrite();
}

bool DecodeRun::WriteLog(DecodedLog& log, const ConsoleStop& stop) {
    strangers_.clear();
    rows_ = 0;
    LogWalk walk(log.log);
    if (!table_->BeginLog(log) || !WriteRows(log, walk, stop)) return false;
    allrows_ += rows_;
    return Report(log, walk);
}

bool DecodeRun::WriteRows(DecodedLog& log, LogWalk& walk, const ConsoleStop& stop) {
    ProgressBar bar(err_, ErrorIsTerminal() && !(options_.output == "-" && OutputIsTerminal()));
    const std::uint64_t size = log.log.FileSize();
    while (table_->Good() && walk.Next()) {
        WriteRecord(log, walk);
        if (walk.Records() % kRecordsPerLook != 0) continue;
        if (stop.Requested()) {
            bar.Clear();
            return Complain(" is not complete: stopped by request");
        }
        bar.Update(walk.Offset(), size);
    }
    bar.Clear();
    return table_->Good() || CannotWrite();
}

void DecodeRun::WriteRecord(DecodedLog& log, LogWalk& walk) {
    DecodedRecord record;
    if (!DecodeRecord(log.definition, walk.Item(), walk.Reply(), &record)) {
        ++strangers_[walk.Item().commandId];
        return;
    }
    if (!IsAsked(walk.Record().timeMs)) {
        log.columns->Follow(record);
        return;
    }
    ++rows_;
    table_->AddRow(log, walk.Record().timeMs, record);
}

bool DecodeRun::IsAsked(std::uint32_t timeMs) const {
    const double seconds = timeMs / 1000.0;
    return seconds >= options_.from && seconds <= options_.to;
}

bool DecodeRun::Report(const DecodedLog& log, const LogWalk& walk) {
    const std::string begin = "corvex-cli: " + log.path + ": ";
    std::uint64_t strange = 0;
    for (const auto& [command, count] : strangers_)
        strange += count;
    if (strange != 0 && strange == walk.Records())
        return ComplainOf(log, "none of its records is of a command of " + options_.definition +
                                   "; is it the definition that it was recorded with?");
    for (const auto& [command, count] : strangers_)
        err_ << begin << Counted(count, "record") << " of command " << HashText(command)
             << ", which the definition does not have\n";
    if (walk.Unknown() != 0) err_ << begin << Counted(walk.Unknown(), "record") << " of unknown items passed over\n";
    for (const std::string& text : {GapText(walk.Gap()), EndText(walk), MissingText(log.log.header, walk.Records())}) {
        if (!text.empty()) err_ << begin << text << '\n';
    }
    if (rows_ == 0 && walk.Records() != 0) late_ = true;
    const std::vector<std::string> outside = log.columns->Outside();
    if (outside.empty()) return true;
    err_ << begin << Counted(outside.size(), "item") << (outside.size() == 1 ? " lies" : " lie")
         << " beyond the packet, so each shows what was read before, at first 0:";
    for (std::size_t i = 0; i < std::min(outside.size(), kItemsNamed); ++i)
        err_ << (i == 0 ? " " : ", ") << outside[i];
    err_ << (outside.size() > kItemsNamed ? " and others" : "") << "; corvex-cli check " << options_.definition
         << " tells why\n";
    return true;
}

}  // namespace corvex
