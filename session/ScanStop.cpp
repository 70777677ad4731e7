#include "session/ScanStop.h"

#include <algorithm>

#include "acquisition/DataAcqEngine.h"
#include "acquisition/ReadSlices.h"
#include "platform/Clock.h"

namespace corvex {

void ScanStop::Begin() {
    asked_.store(false, std::memory_order_relaxed);
    engine_.ForgetStop();
}

void ScanStop::Ask(bool insists) {
    const bool again = asked_.exchange(true, std::memory_order_relaxed);
    engine_.RequestStop();
    if (again && insists && disconnecting_.load(std::memory_order_relaxed)) engine_.RequestCut();
}

void ScanStop::RunDisconnect(const ADXObject* command) {
    if (command == nullptr) return;
    disconnecting_.store(true, std::memory_order_relaxed);
    // The line is being left, whatever it says.
    static_cast<void>(engine_.RunWhole(command, kDisconnectLimit));
    disconnecting_.store(false, std::memory_order_relaxed);
}

bool ScanStop::WaitUnlessAsked(std::uint32_t milliseconds) const {
    IClock& clock = CurrentClock();
    const std::int64_t frequency = clock.Frequency();
    const std::int64_t end = clock.Counter() + frequency * milliseconds / 1000;
    while (!asked_.load(std::memory_order_relaxed)) {
        const std::int64_t now = clock.Counter();
        if (now >= end) return frequency > 0;
        clock.SleepUntil(std::min(end, now + frequency * ReadSlices::kLongest / 1000));
    }
    return false;
}

}  // namespace corvex
