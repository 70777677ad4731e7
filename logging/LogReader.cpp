#include "logging/LogReader.h"

#include <algorithm>
#include <cstring>

namespace corvex {

void LogReader::Attach(IFile* file) {
    file_ = file;
    start_ = 0;
    Discard();
}

void LogReader::Discard() {
    start_ += next_;
    filled_ = next_ = 0;
}

void LogReader::Seek(std::uint64_t offset) {
    if (offset >= start_ && offset - start_ <= filled_) {
        next_ = static_cast<std::uint32_t>(offset - start_);
        return;
    }
    start_ = offset;
    filled_ = next_ = 0;
}

bool LogReader::Fill() {
    Discard();
    if (file_ == nullptr) return false;
    if (!ahead_) ahead_ = std::make_unique_for_overwrite<std::uint8_t[]>(kReadAhead);
    if (file_->Position() != start_ && !file_->Seek(start_)) return false;
    const std::optional<std::uint32_t> got = file_->Read(ahead_.get(), kReadAhead);
    filled_ = got.value_or(0);
    return got.has_value();
}

std::optional<std::uint32_t> LogReader::Read(void* bytes, std::uint32_t count) {
    std::uint32_t done = 0;
    while (done < count) {
        if (next_ == filled_) {
            if (!Fill()) return std::nullopt;
            if (filled_ == 0) break;
        }
        const std::uint32_t part = std::min(count - done, filled_ - next_);
        std::memcpy(static_cast<std::uint8_t*>(bytes) + done, ahead_.get() + next_, part);
        next_ += part;
        done += part;
    }
    return done;
}

}  // namespace corvex
