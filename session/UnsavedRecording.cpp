#include "session/UnsavedRecording.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "logging/DataLogEngine.h"
#include "logging/LogContent.h"
#include "platform/FileMove.h"

namespace corvex {

namespace {

constexpr unsigned kMostOfOneSecond = 999;

bool IsTime(const LocalTime& time) {
    return time.year >= 1980 && time.year <= 9999 && time.month >= 1 && time.month <= 12 && time.day >= 1 &&
           time.day <= 31 && time.hour < 24 && time.minute < 60 && time.second < 60;
}

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
    const LocalTime time = IsTime(begun) ? begun : CurrentLocalTime();
    char name[64];
    const int length =
        std::snprintf(name, sizeof name, "drive-%04u-%02u-%02u-%02u%02u%02u", unsigned{time.year}, unsigned{time.month},
                      unsigned{time.day}, unsigned{time.hour}, unsigned{time.minute}, unsigned{time.second});
    if (number > 1) std::snprintf(name + length, sizeof name - static_cast<std::size_t>(length), "-%u", number);
    return std::string(name) + ".xdl";
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
