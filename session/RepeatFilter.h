// Tells a new press of a key from the repeats of one that is held down, for a line that is to be said once.
#pragma once

#include <string>

#include "session/base/StopWatch.h"

namespace corvex {

// One thread.
class RepeatFilter {
public:
    // Longer than the slowest repeat of a keyboard begins.
    static constexpr double kPauseSeconds = 1.5;

    // False when the same text was asked for less than the pause ago. Each asking begins the pause anew.
    bool IsNew(const std::string& text) {
        const bool repeats = text == last_ && sinceLast_.Elapsed() < kPauseSeconds;
        last_ = text;
        sinceLast_.Restart();
        return !repeats;
    }

private:
    std::string last_;
    StopWatch sinceLast_;
};

}  // namespace corvex
