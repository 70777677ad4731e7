// A walk over a damaged log that goes on behind the damage.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "logging/LogItem.h"
#include "logging/LogResync.h"

namespace corvex {

// As strict as LogWalk, but goes on with the next record that LogResync has proof for. A record in front of damage is
// left out when what follows shows that it is none itself: the next whole one begins inside it, or its time lies
// outside those of its neighbours. Records begin behind the table, or where the header
// says when that lies inside the table, whatever else it says. The file outlives this. One thread.
class LogRescue {
public:
    // `tableEnd` is the place behind the item table.
    LogRescue(IFile& file, const LogHeader& header, std::vector<LogItem> items, std::uint64_t tableEnd);

    // False at the end.
    bool Next();
    // Of the record in hand, until the next call of Next.
    const LogRecord& Record() const { return record_; }
    std::uint64_t Offset() const { return offset_; }  // where it stands in the file
    const std::uint8_t* Packed() const { return packed_.data(); }

    std::uint32_t Records() const { return records_; }            // so far
    std::uint32_t Unknown() const { return unknown_; }            // of unknown items, passed over
    std::uint64_t UnknownBytes() const { return unknownBytes_; }  // of those
    std::uint32_t Places() const { return places_; }              // of damage in front of records that came out
    std::uint64_t Skipped() const { return skipped_; }            // bytes left out there
    std::uint64_t Gone() const { return gone_; }  // bytes that were removed there, as the nextOffsets have it
    // After the end: bytes from the place behind which no record was found.
    std::uint64_t Left() const { return at_ < fileSize_ ? fileSize_ - at_ : 0; }
    bool Failed() const { return failed_; }  // to read the file; all behind is left out

private:
    bool IsRightHere(const LogHead& head) const;
    bool Leads(std::uint64_t offset, int hops = 3);
    bool PassOver(const LogHead& head);
    bool Take(const LogHead& head);
    bool IsNone(const LogHead& head, const std::optional<LogPlace>& next);
    bool GoOn(const std::optional<LogPlace>& next);
    std::optional<LogPlace> FindFrom(std::uint64_t offset, std::uint32_t floorMs);
    bool ReadData(const LogHead& head);

    const std::vector<LogItem> items_;
    const std::vector<std::uint32_t> sizes_;
    const std::uint64_t fileSize_, tableEnd_, dataOffset_;
    LogReader reader_;
    LogResync resync_;
    LastTimes times_;
    std::uint64_t at_;             // where the next record is looked for
    std::uint32_t shortfall_ = 0;  // of the records there
    // Where to go on behind the record in hand, when that is known from a search.
    bool searched_ = false;
    std::optional<LogPlace> resume_;

    LogRecord record_;
    std::uint64_t offset_ = 0;
    std::vector<std::uint8_t> packed_;
    std::uint32_t records_ = 0, unknown_ = 0, places_ = 0;
    std::uint64_t unknownBytes_ = 0, skipped_ = 0, gone_ = 0;
    bool failed_ = false;
};

}  // namespace corvex
