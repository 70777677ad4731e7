#include "apps/cli/DecodeRun.h"

#include <ostream>

#include "apps/cli/DefinitionFile.h"
#include "apps/cli/LogFile.h"
#include "apps/cli/LogLoss.h"
#include "apps/cli/OutputGuard.h"
#include "apps/cli/ProgressBar.h"
#include "apps/cli/TextOutput.h"
#include "export/CsvWriter.h"
#include "export/RecordDecoder.h"
#include "export/text/TextFormat.h"
#include "logging/LogWalk.h"
#include "platform/ConsoleStop.h"
#include "platform/Terminal.h"

namespace corvex {

namespace {

// Records between two looks at the clock and at Ctrl+C.
constexpr std::uint32_t kRecordsPerLook = 1024;

}  // namespace

ExitCode DecodeRun::Run() {
    if (!Prepare()) return kExitFailure;
    TextOutput output(options_.output, out_);
    if (!output.IsOpen()) {
        Complain("cannot be written");
        return kExitFailure;
    }
    return WriteAll(output) ? kExitSuccess : kExitFailure;
}

bool DecodeRun::Prepare() {
    if (!LoadDefinition(definition_, options_.definition, err_)) return false;
    columns_ = std::make_unique<ColumnSet>(definition_, options_.items);
    if (columns_->Count() == 0 && !options_.items.empty()) {
        err_ << "corvex-cli: no value or bitmask of " << options_.definition << " matches \"" << options_.items
             << "\"\n";
        return false;
    }
    if (!OpenLog(log_, options_.log, err_)) return false;
    return MayReplace(options_.output, {options_.log, options_.definition}, options_.force, err_);
}

bool DecodeRun::Complain(const char* what) {
    err_ << "corvex-cli: " << (options_.output == "-" ? "the output" : options_.output) << ' ' << what << '\n';
    return false;
}

bool DecodeRun::WriteAll(TextOutput& output) {
    // A reader that goes away, like head, then makes a write fail and does not end the program.
    const ConsoleStop stop;
    CsvWriter csv(output);
    csv.Text("Time (s)");
    columns_->WriteHeader(csv);
    csv.EndRow();
    LogWalk walk(log_);
    if (!WriteRows(csv, walk, stop)) return false;
    if (!csv.Flush() || !output.Finish()) return Complain("cannot be written");
    Report(walk);
    return true;
}

bool DecodeRun::WriteRows(CsvWriter& csv, LogWalk& walk, const ConsoleStop& stop) {
    ProgressBar bar(err_, ErrorIsTerminal() && !(options_.output == "-" && OutputIsTerminal()));
    const std::uint64_t size = log_.FileSize();
    while (csv.Good() && walk.Next()) {
        WriteRecord(csv, walk);
        if (walk.Records() % kRecordsPerLook != 0) continue;
        if (stop.Requested()) {
            bar.Clear();
            return Complain("is not complete: stopped by request");
        }
        bar.Update(walk.Offset(), size);
    }
    bar.Clear();
    return csv.Flush() || Complain("cannot be written");
}

void DecodeRun::WriteRecord(CsvWriter& csv, LogWalk& walk) {
    DecodedRecord record;
    if (!DecodeRecord(definition_, walk.Item(), walk.Reply(), &record)) {
        ++strangers_[walk.Item().commandId];
        return;
    }
    if (!IsAsked(walk.Record().timeMs)) {
        columns_->Follow(record);
        return;
    }
    csv.Milliseconds(walk.Record().timeMs);
    columns_->WriteRow(csv, record, options_.text);
    csv.EndRow();
}

bool DecodeRun::IsAsked(std::uint32_t timeMs) const {
    const double seconds = timeMs / 1000.0;
    return seconds >= options_.from && seconds <= options_.to;
}

void DecodeRun::Report(const LogWalk& walk) {
    const std::string begin = "corvex-cli: " + options_.log + ": ";
    for (const auto& [command, count] : strangers_)
        err_ << begin << Counted(count, "record") << " of command " << HashText(command)
             << ", which the definition does not have\n";
    if (walk.Unknown() != 0) err_ << begin << Counted(walk.Unknown(), "record") << " of unknown items passed over\n";
    for (const std::string& text : {GapText(walk.Gap()), EndText(walk), MissingText(log_.header, walk.Records())}) {
        if (!text.empty()) err_ << begin << text << '\n';
    }
}

}  // namespace corvex
