// Writes a finished log out of records that exist already, with the times that they have.
#pragma once

#include <cstdint>
#include <vector>

#include "logging/LogFormat.h"
#include "logging/LogItem.h"
#include "platform/File.h"

namespace corvex {

// Every byte is as a recording that ended well leaves it: right offsets and counts, zeros where the format reserves
// bytes. Gathers large pieces; the header comes last, so a copy that is cut off is no log yet. After a failure all
// further calls fail. One thread.
class LogCopy {
public:
    // The file is empty, and outlives this.
    explicit LogCopy(IFile& file) : file_(file) {}
    LogCopy(const LogCopy&) = delete;
    LogCopy& operator=(const LogCopy&) = delete;

    // The item table; `startTime` is kept for the header.
    [[nodiscard]] bool Begin(const LocalTime& startTime, const std::vector<LogItem>& items);
    // `packed` are the item's packedSize bytes. False also for an item that the table does not have.
    [[nodiscard]] bool Add(std::uint8_t itemIndex, std::uint32_t timeMs, const std::uint8_t* packed);
    [[nodiscard]] bool Finish();

private:
    void Gather(const std::uint8_t* bytes, std::uint32_t count);
    bool Flush();

    IFile& file_;
    LogHeader header_;
    std::vector<std::uint32_t> sizes_;  // of each item's records
    std::vector<std::uint8_t> piece_;
    std::uint64_t end_ = 0;  // of what was gathered, in the file
    bool good_ = true;
};

}  // namespace corvex
