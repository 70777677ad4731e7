// Tells a person who waits how far a long work has come.
#pragma once

#include <cstdint>
#include <iosfwd>

#include "platform/Clock.h"

namespace corvex {

// One line that is drawn over itself, from half a second on, and is gone in the end. Nothing at all when not shown. One
// thread.
class ProgressBar {
public:
    // `shown`: a person watches `err`.
    ProgressBar(std::ostream& err, bool shown, IClock& clock = CurrentClock());
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    // So much of `total`. Draws at most ten times a second.
    void Update(std::uint64_t done, std::uint64_t total);
    // Takes the line off the screen.
    void Clear();

private:
    std::ostream& err_;
    const bool shown_;
    IClock& clock_;
    std::int64_t next_;  // counter of the next drawing
    bool drawn_ = false;
};

}  // namespace corvex
