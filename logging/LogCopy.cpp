#include "logging/LogCopy.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr std::size_t kPiece = 1U << 18U;

}  // namespace

// A record can be as long as a file, but is handed on in pieces like everything else.
void LogCopy::Gather(const std::uint8_t* bytes, std::uint32_t count) {
    end_ += count;
    while (good_ && count != 0) {
        const auto part = static_cast<std::uint32_t>(std::min<std::size_t>(count, kPiece - piece_.size()));
        piece_.insert(piece_.end(), bytes, bytes + part);
        bytes += part;
        count -= part;
        if (piece_.size() == kPiece) good_ = Flush();
    }
}

bool LogCopy::Flush() {
    if (!good_ || !file_.Write(piece_.data(), static_cast<std::uint32_t>(piece_.size()))) return false;
    piece_.clear();
    return true;
}

bool LogCopy::Begin(const LocalTime& startTime, const std::vector<LogItem>& items) {
    header_.version = kLogVersion;
    header_.startTime = startTime;
    piece_.reserve(kPiece);
    // Its place; a file with zeros there is refused by every reader.
    const std::uint8_t nothing[kLogHeaderBytes] = {};
    Gather(nothing, kLogHeaderBytes);
    const std::vector<std::uint8_t> table = EncodeItemTable(items);
    Gather(table.data(), static_cast<std::uint32_t>(table.size()));
    for (const LogItem& item : items)
        sizes_.push_back(item.packedSize);
    header_.dataOffset = static_cast<std::uint32_t>(end_);
    return good_;
}

bool LogCopy::Add(std::uint8_t itemIndex, std::uint32_t timeMs, const std::uint8_t* packed) {
    if (itemIndex >= sizes_.size()) return false;
    LogRecord record;
    // Wraps in a file of more than 4 GiB, as it does while recording; no reader follows it.
    record.nextOffset = static_cast<std::uint32_t>(end_ + kLogRecordBytes + sizes_[itemIndex]);
    record.timeMs = timeMs;
    record.itemIndex = itemIndex;
    std::uint8_t bytes[kLogRecordBytes];
    EncodeRecord(record, bytes);
    Gather(bytes, kLogRecordBytes);
    Gather(packed, sizes_[itemIndex]);
    ++header_.sampleCount;
    return good_;
}

// A log without a record is marked as the recorder does it, whose file is still empty at that moment.
bool LogCopy::Finish() {
    header_.endMark = header_.sampleCount == 0 ? 1 : static_cast<std::uint32_t>(end_ + 1);
    good_ = good_ && Flush();
    std::uint8_t bytes[kLogHeaderBytes];
    EncodeHeader(header_, bytes);
    good_ = good_ && file_.Seek(0) && file_.Write(bytes, kLogHeaderBytes);
    return good_;
}

}  // namespace corvex
