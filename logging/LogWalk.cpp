#include "logging/LogWalk.h"

#include <algorithm>

#include "logging/LogBuffers.h"

namespace corvex {

LogWalk::LogWalk(DataLogEngine& log) : log_(log), fileSize_(log.FileSize()) {
    log_.GoToData();
    offset_ = log_.Position();
    // A record that is longer than the file is cut short whatever the buffer.
    const std::uint64_t size =
        std::clamp<std::uint64_t>(log_.MaxPackedSize(), 1, std::max<std::uint64_t>(fileSize_, 1));
    if (!GrowBuffer(packed_, static_cast<std::size_t>(size))) result_ = kLogFileError;
}

bool LogWalk::Next() {
    while (result_ == kLogSuccess) {
        offset_ = log_.Position();
        result_ = log_.ReadRecord(&record_, packed_.data(), static_cast<std::uint32_t>(packed_.size()), &item_);
        if (result_ == kLogSuccess) {
            ++records_;
            return true;
        }
        // The buffer holds what the whole file holds: a record that does not fit is cut short.
        if (result_ == kLogBufferTooSmall) result_ = kLogEndOfFile;
        if (result_ != kLogUnknownItem || log_.Position() <= offset_) continue;
        ++unknown_;
        result_ = kLogSuccess;
    }
    return false;
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
