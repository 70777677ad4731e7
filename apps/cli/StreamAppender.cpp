#include "apps/cli/StreamAppender.h"

#include <algorithm>
#include <cstring>
#include <ostream>
#include <string>

namespace corvex {

std::size_t StreamAppender::TextLength() {
    const std::lock_guard lock(lock_);
    return length_;
}

void StreamAppender::Append(const char* text) {
    const std::lock_guard lock(lock_);
    length_ += std::strlen(text);
    // A stream makes its own line ends.
    std::string plain(text);
    std::erase(plain, '\r');
    out_ << plain << std::flush;
}

void StreamAppender::Finish() {
    const std::lock_guard lock(lock_);
    if (length_ != 0) out_ << '\n' << std::flush;
    length_ = 0;
}

}  // namespace corvex
