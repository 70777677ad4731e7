// Finds the way again behind damage in a log: where the next whole record stands.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "logging/LogChain.h"
#include "logging/LogReader.h"

namespace corvex {

struct LogPlace {
    std::uint64_t offset = 0;
    std::uint32_t shortfall = 0;  // of the record there, and of those behind it
};

// The head of a record, as it stands in the file.
struct LogHead {
    LogRecord record;
    bool known = false;           // its item is in the table; the rest counts only then
    std::uint64_t end = 0;        // behind its data, which may lie past the end of the file
    std::uint32_t shortfall = 0;  // as ShortfallOf
};

// No value where there are not twelve bytes, or none but zeros, or the file cannot be read. `sizes` are those of the
// items' records.
std::optional<LogHead> ReadLogHead(LogReader& reader, std::uint64_t offset, const std::vector<std::uint32_t>& sizes);

// Takes nothing for a record without proof. Two in a row prove each other: known items, times that do not fall, and
// nextOffsets that are right or wrong by the same amount, as behind a block that was inserted or removed. A single one
// proves itself when its nextOffset is right, or wrong as it was in front of the damage, or wrong by what the file is
// longer or shorter than its header says. Times may not fall below those from in front of the damage, but for two in a
// row of which the nextOffsets prove that much alone.
//
// Each byte is looked at once as long as `from` goes forward, and memory is 64 KiB for each item at the most. The file
// outlives this, and may be read by others in between. One thread.
class LogResync {
public:
    // No record stands in front of `begin`.
    LogResync(IFile& file, std::vector<std::uint32_t> sizes, std::uint64_t begin, std::uint32_t endMark);

    // At or behind `from`. `shortfall` is that of the records in front of the damage, `floorMs` what times may not fall
    // below. No value when there is none, or the file cannot be read.
    std::optional<LogPlace> Find(std::uint64_t from, std::uint32_t shortfall, std::uint32_t floorMs);
    bool Failed() const { return failed_; }  // to read the file

private:
    bool LoadBlock(std::uint64_t from);
    bool IsProven(const LogHead& head);
    bool IsTrusted(std::uint32_t shortfall) const;
    bool StoodInData(const LogHead& head) const;

    IFile& file_;
    const std::vector<std::uint32_t> sizes_;
    const std::uint64_t begin_;
    std::uint64_t fileSize_ = 0;
    std::optional<std::uint32_t> endShortfall_;
    LogReader reader_;
    std::vector<LogReader> behind_;  // one for each item, so that each goes forward alone
    std::vector<std::uint8_t> block_;
    std::uint64_t blockAt_ = 0;
    std::uint32_t shortfall_ = 0, floorMs_ = 0;  // of the present search
    bool failed_ = false;
};

}  // namespace corvex
