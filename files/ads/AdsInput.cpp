#include "files/ads/AdsInput.h"

namespace corvex {

AdsInput::AdsInput(const void* bytes, std::size_t size) {
    if (bytes == nullptr) return;
    at_ = static_cast<const std::uint8_t*>(bytes);
    stop_ = at_ + size;
}

int AdsInput::Peek() {
    if (ended_) return kEnd;
    if (at_ == stop_) {
        const std::size_t count = file_ != nullptr ? std::fread(block_.data(), 1, block_.size(), file_) : 0;
        at_ = block_.data();
        stop_ = at_ + count;
        if (count == 0) failed_ = file_ != nullptr && std::ferror(file_) != 0;
    }
    ended_ = at_ == stop_ || *at_ == 0xFF;
    return ended_ ? kEnd : *at_;
}

int AdsInput::Next() {
    const int c = Peek();
    if (c == kEnd) return kEnd;
    Step();
    if (c != '\r' || Peek() != '\n') return c;
    Step();
    return '\n';
}

}  // namespace corvex
