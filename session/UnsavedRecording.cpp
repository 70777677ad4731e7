#include "session/UnsavedRecording.h"

#include <filesystem>
#include <system_error>

#include "logging/DataLogEngine.h"
#include "logging/LogContent.h"
#include "platform/FileMove.h"
#include "session/LogName.h"

namespace corvex {

namespace {

constexpr unsigned kMostOfOneSecond = 999;

}  // namespace

std::optional<LocalTime> FindUnsavedRecording(const std::string& scratch) {
    DataLogEngine log;
    if (LookIntoLog(scratch) != LogContent::kRecords) return std::nullopt;
    // Who reads is let in while another writes: whether one does, only somebody else who would write is told.
    if (!SystemFiles().Open(scratch, FileAccess::kReadWrite)) return std::nullopt;
    if (log.Open(scratch.c_str(), kLogForLooking) != kLogSuccess) return std::nullopt;
    return log.header.startTime;
}

std::string NameOfUnsavedRecording(const LocalTime& begun, unsigned number) {
    const std::string name = LogNameOf("drive", begun);
    return (number > 1 ? name + "-" + std::to_string(number) : name) + ".xdl";
}

std::optional<KeptRecording> KeepUnsavedRecording(const std::string& scratch) {
    if (!HoldsLog(scratch)) return std::nullopt;
    const LocalTime begun = FindUnsavedRecording(scratch).value_or(LocalTime{});
    const std::filesystem::path folder = std::filesystem::path(scratch).parent_path();
    std::uint32_t error = 0;
    for (unsigned number = 1; number <= kMostOfOneSecond; ++number) {
        const std::string name = (folder / NameOfUnsavedRecording(begun, number)).string();
        error = MoveToNewName(scratch, name);
        if (error == 0) return KeptRecording{name, 0};
        std::error_code unknown;
        if (!std::filesystem::exists(name, unknown)) break;
    }
    return KeptRecording{scratch, error};
}

}  // namespace corvex
