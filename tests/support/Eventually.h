// Waits for what another thread does, with a deadline far beyond what a loaded machine needs.
#pragma once

#include "platform/Clock.h"

namespace corvex::test {

// Asks each millisecond, for 30 seconds at most unless told otherwise. The last answer.
template <class Predicate>
bool Eventually(Predicate isSo, int seconds = 30) {
    IClock& clock = SystemClock();
    const std::int64_t deadline = clock.Counter() + seconds * clock.Frequency();
    while (!isSo()) {
        if (clock.Counter() > deadline) return isSo();
        SleepUntil(clock.Counter() + clock.Frequency() / 1000);
    }
    return true;
}

}  // namespace corvex::test
