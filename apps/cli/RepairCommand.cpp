#include <filesystem>
#include <memory>
#include <ostream>
#include <vector>

#include "apps/cli/AtomicReplace.h"
#include "apps/cli/Commands.h"
#include "apps/cli/LogFile.h"
#include "apps/cli/WriteFailure.h"
#include "export/text/TextFormat.h"
#include "logging/LogContent.h"
#include "logging/LogCopy.h"
#include "logging/LogRescue.h"
#include "platform/ConsoleStop.h"

namespace corvex {

namespace {

bool Refuse(std::ostream& err, const std::string& path, const std::string& why) {
    err << "corvex-cli: " << path << ": " << why << '\n';
    return false;
}

// A drive that was recorded is never lost to a slip of the hand.
bool MayWrite(const std::string& input, const std::string& output, bool force, std::ostream& err) {
    if (SameFile(input, output)) return Refuse(err, output, "is the log itself; it is never written to");
    if (!force && LookIntoLog(output) != LogContent::kNothing)
        return Refuse(err, output, "holds something already; --force replaces it");
    return true;
}

bool OpenDamaged(DataLogEngine& log, const std::string& path, std::ostream& err) {
    if (OpenLog(log, path, err)) return true;
    err << "corvex-cli: nothing can be saved: without a whole header and item table nobody can tell where records "
           "begin and how long they are\n";
    return false;
}

std::vector<LogItem> ItemsOf(const DataLogEngine& log) {
    std::vector<LogItem> items;
    for (std::uint32_t i = 0; i < log.ItemCount(); ++i)
        items.push_back(*log.GetItem(i));
    return items;
}

bool CopyRecords(const LogHeader& header, const std::vector<LogItem>& items, LogRescue& rescue, IFile& file,
                 const ConsoleStop& stop) {
    LogCopy copy(file);
    if (!copy.Begin(header.startTime, items)) return false;
    while (rescue.Next()) {
        const LogRecord& record = rescue.Record();
        if (stop.Requested() || !copy.Add(record.itemIndex, record.timeMs, rescue.Packed())) return false;
    }
    return copy.Finish();
}

std::string Bytes(std::uint64_t count) {
    return Counted(static_cast<std::size_t>(count), "byte");
}

// Empty when the new log has all that the old one had.
std::string LeftOut(const LogRescue& rescue, const LogHeader& header) {
    std::vector<std::string> parts;
    if (rescue.Unknown() != 0)
        parts.push_back(Bytes(rescue.UnknownBytes()) + " with " + Counted(rescue.Unknown(), "record") +
                        " of unknown items");
    if (rescue.Places() != 0)
        parts.push_back(Bytes(rescue.Skipped()) + " of damage at " + Counted(rescue.Places(), "place"));
    if (rescue.Gone() != 0) parts.push_back(Bytes(rescue.Gone()) + " that are no longer in the file");
    if (rescue.Left() != 0)
        parts.push_back("the last " + Bytes(rescue.Left()) +
                        (rescue.Failed() ? ", where the file cannot be read" : ", which are no whole record"));
    if (rescue.Records() < header.sampleCount)
        parts.push_back(Counted(header.sampleCount - rescue.Records(), "record") + " of the " +
                        std::to_string(header.sampleCount) + " that its header counts");
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : "; ") + part;
    return text;
}

// True when nothing had to be left out.
bool RepairLog(const std::string& from, const std::string& to, bool force, std::ostream& out, std::ostream& err) {
    DataLogEngine log;
    if (!OpenDamaged(log, from, err) || !MayWrite(from, to, force, err)) return false;
    const std::unique_ptr<IFile> input = SystemFiles().Open(from, FileAccess::kRead);
    AtomicReplace fresh(to);
    std::string reason = "nothing that a log could replace";
    std::unique_ptr<IFile> file;
    if (!fresh.Name().empty()) file = SystemFiles().Open(fresh.Name(), FileAccess::kCreate, &reason);
    if (!input || !file) {
        Refuse(err, input ? to : from, input ? "cannot be written: " + reason : "cannot be read");
        return false;
    }
    const std::vector<LogItem> items = ItemsOf(log);
    const ConsoleStop stop;
    LogRescue rescue(*input, log.header, items, log.Position());
    const bool copy = CopyRecords(log.header, items, rescue, *file, stop);
    const bool whole = file->Close() && copy;
    if (!whole || !fresh.MoveIntoPlace()) {
        Refuse(err, to,
               stop.Requested() ? "is not written: stopped by request" : "it" + CannotBeWritten(ReasonNotWritten(to)));
        return false;
    }
    const std::string left = LeftOut(rescue, log.header);
    out << to << ": " << Counted(rescue.Records(), "record") << " copied; "
        << (left.empty() ? "nothing left out" : "left out: " + left) << '\n';
    if (left.empty()) return true;
    return Refuse(err, from, "not all of it could be saved");
}

}  // namespace

// A log that cannot be saved keeps none of the others from it.
ExitCode RunRepair(const RepairOptions& options, std::ostream& out, std::ostream& err) {
    bool whole = true;
    for (const std::string& input : options.inputs) {
        const std::string output =
            options.folder.empty()
                ? options.output
                : (std::filesystem::path(options.folder) / std::filesystem::path(input).filename()).string();
        whole = RepairLog(input, output, options.force, out, err) && whole;
    }
    return whole ? kExitSuccess : kExitFailure;
}

}  // namespace corvex
