// A walk over all records of a log in file order, for those who read it without playing it.
#pragma once

#include <cstdint>
#include <vector>

#include "definition/PacketView.h"
#include "logging/DataLogEngine.h"
#include "logging/LogChain.h"

namespace corvex {

// Strict: believes no record whose nextOffset does not point right behind it, and none that goes back in time when what
// follows it is no record either. Begins where a playback would. A record of an unknown item is passed over through the
// place that it names, as long as that lies behind its 12 bytes and inside the file. Ends in front of the first damage,
// or with the last whole record. The log is open, does not play, and outlives the walk; nobody else reads it meanwhile.
// One thread.
class LogWalk {
public:
    explicit LogWalk(DataLogEngine& log);

    // False at the end; Result then says why.
    bool Next();

    // Of the record in hand, until the next call of Next.
    const LogRecord& Record() const { return record_; }
    const LogItem& Item() const { return *item_; }
    std::uint64_t Offset() const { return offset_; }  // where it stands in the file
    const std::uint8_t* Packed() const { return packed_.data(); }
    // Its reply, expanded when asked for.
    PacketView Reply();

    // kLogEndOfFile when everything in front of the end or of the damage was read; kLogUnknownItem when an unknown
    // record points nowhere further on; kLogFileError when the file cannot be read.
    std::uint32_t Result() const { return result_; }
    std::uint32_t Records() const { return records_; }  // read so far
    std::uint32_t Unknown() const { return unknown_; }  // passed over so far
    // After the end: bytes of the file from the place where reading ended, which is Offset; 0 at a clean end.
    std::uint64_t Left() const;
    // Bytes that are neither table nor read, or that the header takes for records and the table for its own: a foreign
    // writer's, or records that are lost by a damaged header.
    std::uint64_t Gap() const { return gap_; }
    // After the end: what stands there is no record that was merely cut short, so that whole ones may follow.
    bool Damaged() const { return damaged_; }

private:
    bool Accept();
    bool IsFollowed();
    void PassOver();
    void End(std::uint32_t result);

    DataLogEngine& log_;
    const std::uint64_t fileSize_;
    std::vector<std::uint8_t> packed_, reply_;
    LogRecord record_;
    const LogItem* item_ = nullptr;
    LastTimes times_;
    std::uint64_t offset_ = 0, gap_ = 0;
    std::uint32_t result_ = kLogSuccess, records_ = 0, unknown_ = 0;
    bool damaged_ = false;
};

}  // namespace corvex
