#include "logging/LogResync.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr std::uint32_t kBlock = 65536;
constexpr std::size_t kItemIndexAt = 8;  // in a record
constexpr std::size_t kUsableItems = 256;

LogHead HeadOf(const std::uint8_t* bytes, std::uint64_t offset, const std::vector<std::uint32_t>& sizes) {
    LogHead head;
    head.record = DecodeRecord(bytes);
    head.known = head.record.itemIndex < sizes.size();
    if (!head.known) return head;
    head.end = offset + kLogRecordBytes + sizes[head.record.itemIndex];
    head.shortfall = ShortfallOf(head.record, head.end);
    return head;
}

}  // namespace

std::optional<LogHead> ReadLogHead(LogReader& reader, std::uint64_t offset, const std::vector<std::uint32_t>& sizes) {
    std::uint8_t bytes[kLogRecordBytes];
    reader.Seek(offset);
    if (reader.Read(bytes, kLogRecordBytes) != kLogRecordBytes) return std::nullopt;
    const LogHead head = HeadOf(bytes, offset, sizes);
    return IsBlank(head.record) ? std::nullopt : std::optional(head);
}

LogResync::LogResync(IFile& file, std::vector<std::uint32_t> sizes, std::uint64_t begin, std::uint32_t endMark)
    : file_(file), sizes_(std::move(sizes)), begin_(begin), fileSize_(file.Size().value_or(0)) {
    reader_.Attach(&file_);
    behind_.resize(std::min(sizes_.size(), kUsableItems));
    for (LogReader& reader : behind_)
        reader.Attach(&file_);
    if (endMark != kNeverEnded) endShortfall_ = static_cast<std::uint32_t>(fileSize_ + 1) - endMark;
}

std::optional<LogPlace> LogResync::Find(std::uint64_t from, std::uint32_t shortfall, std::uint32_t floorMs) {
    shortfall_ = shortfall;
    floorMs_ = floorMs;
    while (from + kLogRecordBytes <= fileSize_ && LoadBlock(from)) {
        auto at = static_cast<std::size_t>(from - blockAt_);
        for (; at + kLogRecordBytes <= block_.size(); ++at) {
            // Most places are sorted out by this byte.
            if (block_[at + kItemIndexAt] >= sizes_.size()) continue;
            const LogHead head = HeadOf(&block_[at], blockAt_ + at, sizes_);
            if (IsProven(head)) return LogPlace{blockAt_ + at, head.shortfall};
        }
        from = blockAt_ + at;
    }
    return std::nullopt;
}

// What is there from the search before is searched on.
bool LogResync::LoadBlock(std::uint64_t from) {
    if (from >= blockAt_ && from + kLogRecordBytes <= blockAt_ + block_.size()) return true;
    block_.resize(static_cast<std::size_t>(std::min<std::uint64_t>(kBlock + kLogRecordBytes - 1, fileSize_ - from)));
    reader_.Seek(from);
    const std::optional<std::uint32_t> got = reader_.Read(block_.data(), static_cast<std::uint32_t>(block_.size()));
    failed_ = !got;
    blockAt_ = from;
    block_.resize(got.value_or(0));
    return block_.size() >= kLogRecordBytes;
}

bool LogResync::IsProven(const LogHead& head) {
    if (head.end > fileSize_ || IsBlank(head.record)) return false;
    const bool trusted = IsTrusted(head.shortfall), late = head.record.timeMs >= floorMs_;
    if (trusted && late) return true;
    if (!trusted && (!late || !StoodInData(head))) return false;
    const std::optional<LogHead> next = ReadLogHead(behind_[head.record.itemIndex], head.end, sizes_);
    return next && next->known && next->shortfall == head.shortfall && next->record.timeMs >= head.record.timeMs;
}

bool LogResync::IsTrusted(std::uint32_t shortfall) const {
    return shortfall == 0 || shortfall == shortfall_ || shortfall == endShortfall_;
}

// Where it says that it was written. Tells nothing once offsets wrap.
bool LogResync::StoodInData(const LogHead& head) const {
    constexpr std::uint64_t kWraps = std::uint64_t{1} << 32U;
    return fileSize_ >= kWraps || head.record.nextOffset >= begin_ + kLogRecordBytes + sizes_[head.record.itemIndex];
}

}  // namespace corvex
