#include "logging/LogWalk.h"

#include <algorithm>

#include "logging/LogBuffers.h"

namespace corvex {

namespace {

constexpr std::uint64_t kFirstItem = kLogHeaderBytes + 4;

std::uint64_t TableEndOf(const DataLogEngine& log) {
    std::uint64_t end = kFirstItem;
    for (std::uint32_t i = 0; i < log.ItemCount(); ++i)
        end += kLogItemBytes + log.GetItem(i)->mask.Bytes().size();
    return end;
}

}  // namespace

LogWalk::LogWalk(DataLogEngine& log) : log_(log), fileSize_(log.FileSize()) {
    const std::uint64_t tableEnd = std::min(TableEndOf(log_), fileSize_);
    log_.GoToData();
    offset_ = log_.Position();
    if (offset_ > fileSize_) {
        // Nothing is read, but all behind the table is there.
        offset_ = tableEnd;
        damaged_ = offset_ < fileSize_;
        result_ = kLogEndOfFile;
    } else if (offset_ == log_.header.dataOffset || offset_ == tableEnd) {
        const std::uint64_t told = log_.header.dataOffset;
        gap_ = offset_ - std::min(told >= kFirstItem && told < tableEnd ? told : tableEnd, offset_);
    }
    // A record that is longer than the file is cut short whatever the buffer.
    const std::uint64_t size =
        std::clamp<std::uint64_t>(log_.MaxPackedSize(), 1, std::max<std::uint64_t>(fileSize_, 1));
    if (!GrowBuffer(packed_, static_cast<std::size_t>(size))) result_ = kLogFileError;
}

bool LogWalk::Next() {
    while (result_ == kLogSuccess) {
        offset_ = log_.Position();
        const auto size = static_cast<std::uint32_t>(packed_.size());
        const std::uint32_t result = log_.ReadRecord(&record_, packed_.data(), size, &item_);
        if (result == kLogSuccess && Accept()) return true;
        if (result == kLogUnknownItem) PassOver();
        // The buffer holds what the whole file holds: a record that does not fit is cut short.
        if (result == kLogBufferTooSmall || result == kLogEndOfFile) End(kLogEndOfFile);
        if (result == kLogFileError) End(kLogFileError);
    }
    return false;
}

bool LogWalk::Accept() {
    if (ShortfallOf(record_, log_.Position()) != 0 || (record_.timeMs < times_.Floor() && !IsFollowed())) {
        End(kLogEndOfFile);
        return false;
    }
    times_.Add(record_.timeMs);
    ++records_;
    return true;
}

// By the end of the file, or by what looks like the next record. A hole can begin behind the nextOffset of a record.
bool LogWalk::IsFollowed() {
    const std::uint64_t next = log_.Position();
    if (next >= log_.FileSize()) return true;
    LogRecord record;
    const LogItem* item = nullptr;
    std::uint8_t nothing = 0;
    const std::uint32_t result = log_.ReadRecord(&record, &nothing, 0, &item);
    log_.GoTo(next);
    if (result == kLogUnknownItem) return PlaceBehindUnknown(record, next, log_.FileSize()).has_value();
    if (result != kLogSuccess && result != kLogBufferTooSmall) return false;
    return ShortfallOf(record, next + kLogRecordBytes + item->packedSize) == 0;
}

void LogWalk::PassOver() {
    const std::optional<std::uint64_t> next = PlaceBehindUnknown(record_, offset_, log_.FileSize());
    if (!next) {
        // One that leads out of the file may have been cut short.
        End(record_.nextOffset > static_cast<std::uint32_t>(offset_) ? kLogEndOfFile : kLogUnknownItem);
        return;
    }
    ++unknown_;
    log_.GoTo(*next);
}

void LogWalk::End(std::uint32_t result) {
    result_ = result;
    log_.GoTo(offset_);
    if (Left() < kLogRecordBytes) return;
    const LogItem* const item = log_.GetItem(record_.itemIndex);
    damaged_ = item == nullptr || ShortfallOf(record_, offset_ + kLogRecordBytes + item->packedSize) != 0;
}

PacketView LogWalk::Reply() {
    const std::uint32_t size = ExpandedSize(*item_, fileSize_);
    if (!GrowBuffer(reply_, size == 0 ? 1 : size)) return {packed_.data(), 0};
    ExpandRecord(item_->mask, packed_.data(), item_->packedSize, reply_.data(), size);
    return {reply_.data(), size};
}

std::uint64_t LogWalk::Left() const {
    return offset_ < fileSize_ ? fileSize_ - offset_ : 0;
}

}  // namespace corvex
