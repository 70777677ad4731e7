// The text log on a stream.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <mutex>

#include "session/base/DebugOutput.h"

namespace corvex {

// A stream keeps what it has been given: clearing the log only means that the next line follows.
class StreamAppender : public ITextAppender {
public:
    explicit StreamAppender(std::ostream& out) : out_(out) {}

    std::size_t TextLength() override;
    void Append(const char* text) override;
    void Clear() override {}

    // Ends the last line.
    void Finish();

private:
    std::ostream& out_;
    std::mutex lock_;
    std::size_t length_ = 0;
};

}  // namespace corvex
