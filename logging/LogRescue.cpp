#include "logging/LogRescue.h"

#include <algorithm>

#include "logging/LogBuffers.h"

namespace corvex {

namespace {

std::vector<std::uint32_t> SizesOf(const std::vector<LogItem>& items) {
    std::vector<std::uint32_t> sizes;
    for (const LogItem& item : items)
        sizes.push_back(item.packedSize);
    return sizes;
}

// A table can be read as longer than it is.
std::uint64_t BeginOf(const LogHeader& header, std::uint64_t tableEnd) {
    constexpr std::uint32_t kFirstItem = kLogHeaderBytes + 4;
    return header.dataOffset >= kFirstItem ? std::min<std::uint64_t>(header.dataOffset, tableEnd) : tableEnd;
}

}  // namespace

LogRescue::LogRescue(IFile& file, const LogHeader& header, std::vector<LogItem> items, std::uint64_t tableEnd)
    : items_(std::move(items)),
      sizes_(SizesOf(items_)),
      fileSize_(file.Size().value_or(0)),
      tableEnd_(tableEnd),
      dataOffset_(header.dataOffset),
      resync_(file, sizes_, BeginOf(header, tableEnd), header.endMark),
      at_(BeginOf(header, tableEnd)) {
    reader_.Attach(&file);
    failed_ = !GrowBuffer(packed_, PackedBufferSize(items_, fileSize_));
}

bool LogRescue::Next() {
    while (!failed_ && at_ < fileSize_) {
        if (searched_ && !GoOn(resume_)) return false;
        searched_ = false;
        const std::optional<LogHead> head = ReadLogHead(reader_, at_, sizes_);
        if (head && IsRightHere(*head)) {
            if (Take(*head)) return true;
        } else if (!head || !PassOver(*head)) {
            resume_ = FindFrom(at_, times_.Floor());
            searched_ = true;
        }
    }
    return false;
}

bool LogRescue::IsRightHere(const LogHead& head) const {
    return head.known && head.shortfall == shortfall_ && head.end <= fileSize_;
}

// To the end of the file, or to what looks like a record. Any bytes can look like a record of an unknown item, so that
// has to lead on in turn.
bool LogRescue::Leads(std::uint64_t offset, int hops) {
    if (offset == fileSize_) return true;
    const std::optional<LogHead> head = ReadLogHead(reader_, offset, sizes_);
    if (!head) return false;
    if (head->known) return head->shortfall == shortfall_;
    const std::optional<std::uint64_t> next = PlaceBehindUnknown(head->record, offset, fileSize_, shortfall_);
    return next && (hops == 0 || Leads(*next, hops - 1));
}

bool LogRescue::PassOver(const LogHead& head) {
    if (head.known) return false;
    const std::optional<std::uint64_t> next = PlaceBehindUnknown(head.record, at_, fileSize_, shortfall_);
    if (!next || !Leads(*next)) return false;
    ++unknown_;
    unknownBytes_ += *next - at_;
    at_ = *next;
    return true;
}

// A damaged record can have kept its nextOffset, so one that is followed by no other is looked at twice.
bool LogRescue::Take(const LogHead& head) {
    if (!Leads(head.end)) {
        resume_ = FindFrom(at_ + 1, std::min(times_.Floor(), head.record.timeMs));
        searched_ = true;
        if (IsNone(head, resume_)) return false;
    }
    if (!ReadData(head)) return false;
    times_.Add(head.record.timeMs);
    record_ = head.record;
    offset_ = at_;
    at_ = head.end;
    ++records_;
    return true;
}

bool LogRescue::IsNone(const LogHead& head, const std::optional<LogPlace>& next) {
    if (head.record.timeMs < times_.Floor()) return true;
    if (!next) return false;
    if (next->offset < head.end) return true;
    const std::optional<LogHead> first = ReadLogHead(reader_, next->offset, sizes_);
    if (!first) return false;
    const std::optional<LogHead> second = ReadLogHead(reader_, first->end, sizes_);
    const bool two = second && second->known && second->shortfall == first->shortfall;
    const std::uint32_t latest = std::max(first->record.timeMs, two ? second->record.timeMs : 0);
    return head.record.timeMs > latest;
}

bool LogRescue::GoOn(const std::optional<LogPlace>& next) {
    if (!next) return false;
    // What a foreign writer left in front of its first record is no loss, and neither is a part of the table.
    const bool gap = records_ == 0 && (next->offset == dataOffset_ || next->offset == tableEnd_);
    const auto removed = static_cast<std::int32_t>(shortfall_ - next->shortfall);
    if (removed > 0) gone_ += static_cast<std::uint32_t>(removed);
    if (!gap && (removed > 0 || next->offset != at_)) {
        ++places_;
        skipped_ += next->offset - at_;
    }
    at_ = next->offset;
    shortfall_ = next->shortfall;
    return true;
}

std::optional<LogPlace> LogRescue::FindFrom(std::uint64_t offset, std::uint32_t floorMs) {
    const std::optional<LogPlace> place = resync_.Find(offset, shortfall_, floorMs);
    failed_ = failed_ || resync_.Failed();
    return place;
}

bool LogRescue::ReadData(const LogHead& head) {
    const std::uint32_t size = sizes_[head.record.itemIndex];
    reader_.Seek(at_ + kLogRecordBytes);
    failed_ = reader_.Read(packed_.data(), size) != size;
    return !failed_;
}

}  // namespace corvex
