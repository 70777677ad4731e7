#include "session/UnsavedRecording.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

#include "logging/DataLogEngine.h"
#include "platform/FileMove.h"

namespace corvex {

namespace {

constexpr unsigned kMostOfOneSecond = 999;

bool IsTime(const LocalTime& time) {
    return time.year >= 1980 && time.year <= 9999 && time.month >= 1 && time.month <= 12 && time.day >= 1 &&
           time.day <= 31 && time.hour < 24 && time.minute < 60 && time.second < 60;
}

// One whole record from the position on, whatever command it is of: another definition may know it.
bool ReadsARecord(DataLogEngine& log) {
    std::vector<std::uint8_t> data(std::min<std::uint64_t>(log.MaxPackedSize(), log.FileSize()) + 1);
    LogRecord record;
    const LogItem* item = nullptr;
    const std::uint32_t result = log.ReadRecord(&record, data.data(), static_cast<std::uint32_t>(data.size()), &item);
    return result == kLogSuccess || result == kLogUnknownItem;
}

// A log that was just opened stands behind its item table, which is where the records begin, whatever a damaged header
// says.
bool HoldsARecord(DataLogEngine& log) {
    if (ReadsARecord(log)) return true;
    log.GoToData();
    return ReadsARecord(log);
}

}  // namespace

std::optional<LocalTime> FindUnsavedRecording(const std::string& scratch) {
    DataLogEngine log;
    if (log.Open(scratch.c_str(), kLogForLooking) != kLogSuccess || !HoldsARecord(log)) return std::nullopt;
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
    const std::optional<LocalTime> begun = FindUnsavedRecording(scratch);
    if (!begun) return std::nullopt;
    const std::filesystem::path folder = std::filesystem::path(scratch).parent_path();
    std::uint32_t error = 0;
    for (unsigned number = 1; number <= kMostOfOneSecond; ++number) {
        const std::string name = (folder / NameOfUnsavedRecording(*begun, number)).string();
        error = MoveToNewName(scratch, name);
        if (error == 0) return KeptRecording{name, 0};
        std::error_code unknown;
        if (!std::filesystem::exists(name, unknown)) break;
    }
    return KeptRecording{scratch, error};
}

}  // namespace corvex
