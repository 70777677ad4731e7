#include "apps/cli/RepairCommand.h"

#include <algorithm>
#include <memory>
#include <ostream>
#include <vector>

#include "apps/cli/FreshFile.h"
#include "apps/cli/LogFile.h"
#include "apps/cli/TextFormat.h"
#include "logging/LogContent.h"
#include "logging/LogCopy.h"
#include "logging/LogWalk.h"
#include "platform/ConsoleStop.h"

namespace corvex {

namespace {

bool Refuse(std::ostream& err, const std::string& path, const std::string& why) {
    err << "corvex-cli: " << path << ": " << why << '\n';
    return false;
}

// A drive that was recorded is never lost to a slip of the hand.
bool MayWrite(const RepairOptions& options, std::ostream& err) {
    if (SameFile(options.input, options.output))
        return Refuse(err, options.output, "is the log itself; it is never written to");
    if (!options.force && LookIntoLog(options.output) != LogContent::kNothing)
        return Refuse(err, options.output, "holds something already; --force replaces it");
    return true;
}

bool OpenDamaged(DataLogEngine& log, const std::string& path, std::ostream& err) {
    if (OpenLog(log, path, err)) return true;
    err << "corvex-cli: nothing can be saved: without a whole header and item table nobody can tell where records "
           "begin and how long they are\n";
    return false;
}

bool CopyRecords(DataLogEngine& log, LogWalk& walk, IFile& file, const ConsoleStop& stop, std::uint64_t* copied) {
    std::vector<LogItem> items;
    for (std::uint32_t i = 0; i < log.ItemCount(); ++i)
        items.push_back(*log.GetItem(i));
    LogCopy copy(file);
    if (!copy.Begin(log.header.startTime, items)) return false;
    while (walk.Next()) {
        if (stop.Requested() || !copy.Add(walk.Record().itemIndex, walk.Record().timeMs, walk.Packed())) return false;
        *copied += kLogRecordBytes + walk.Item().packedSize;
    }
    return copy.Finish();
}

std::string LeftOut(const LogWalk& walk, std::uint64_t lost) {
    if (lost == 0) return "nothing left out";
    const auto bytes = [](std::uint64_t count) { return Counted(static_cast<std::size_t>(count), "byte"); };
    std::vector<std::string> parts;
    if (lost > walk.Left()) {
        parts.push_back(bytes(lost - walk.Left()));
        if (walk.Unknown() != 0) parts.back() += " with " + Counted(walk.Unknown(), "record") + " of unknown items";
    }
    if (walk.Left() != 0) {
        parts.push_back("the last " + bytes(walk.Left()));
        if (walk.Result() == kLogEndOfFile)
            parts.back() += ", which are no whole record";
        else
            parts.back() += ", where reading ended with " + LogErrorText(walk.Result());
    }
    return "left out: " + parts.front() + (parts.size() == 2 ? "; " + parts.back() : "");
}

}  // namespace

ExitCode RunRepair(const RepairOptions& options, std::ostream& out, std::ostream& err) {
    DataLogEngine log;
    if (!OpenDamaged(log, options.input, err) || !MayWrite(options, err)) return kExitFailure;
    FreshFile fresh(options.output);
    std::string reason = "nothing that a log could replace";
    std::unique_ptr<IFile> file;
    if (!fresh.Name().empty()) file = SystemFiles().Open(fresh.Name(), FileAccess::kCreate, &reason);
    if (!file) {
        Refuse(err, options.output, "cannot be written: " + reason);
        return kExitFailure;
    }
    const std::uint64_t tableEnd = log.Position();
    const ConsoleStop stop;
    LogWalk walk(log);
    const std::uint64_t begin = std::min(walk.Offset(), tableEnd);
    std::uint64_t copied = 0;
    const bool copy = CopyRecords(log, walk, *file, stop, &copied);
    const bool whole = file->Close() && copy;
    if (!whole || !fresh.MoveIntoPlace()) {
        Refuse(err, options.output, stop.Requested() ? "is not written: stopped by request" : "cannot be written");
        return kExitFailure;
    }
    const std::uint64_t size = log.FileSize();
    const std::uint64_t lost = size > begin + copied ? size - begin - copied : 0;
    out << options.output << ": " << Counted(walk.Records(), "record") << " copied; " << LeftOut(walk, lost) << '\n';
    return kExitSuccess;
}

}  // namespace corvex
