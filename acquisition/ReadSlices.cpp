#include "acquisition/ReadSlices.h"

#include <algorithm>

namespace corvex {

bool ReadSlices::AreNeeded(const SerialTimeouts& times) {
    // Without a counter there is nothing to measure slices with.
    if (CurrentClock().Frequency() <= 0) return false;
    const ReadLimits limits = LimitsOfRead(times, 1);
    if (limits.immediate || limits.firstBytesEndIt) return false;
    return times.readMultiplier != 0 || !limits.total || *limits.total > kLongest;
}

ReadSlices::ReadSlices(const ReadLimits& limits, IClock& clock)
    : clock_(clock), frequency_(clock.Frequency()), gap_(limits.gap), now_(clock.Counter()), sliceBegan_(now_) {
    lookAt_ = now_ + Counts(kLongest) / 2;
    // No total is longer than the counter's life.
    constexpr std::int64_t kLongestTotal = std::int64_t{1} << 32;
    if (limits.total) end_ = now_ + Counts(std::min(*limits.total, kLongestTotal));
}

std::uint32_t ReadSlices::Next() {
    slice_ = kLongest;
    for (const Moment& end : {end_, gapEnd_}) {
        if (!end) continue;
        const std::int64_t left = *end - now_;
        if (left <= 0) return 0;
        if (left < Counts(kLongest)) {
            const auto rest = static_cast<std::uint32_t>((left * 1000 + frequency_ - 1) / frequency_);
            slice_ = std::min(slice_, rest);
        }
    }
    sliceBegan_ = now_;
    return slice_;
}

bool ReadSlices::Took(bool byteCame) {
    now_ = clock_.Counter();
    byteCame_ = byteCame;
    if (byteCame) {
        if (gap_) gapEnd_ = now_ + Counts(*gap_);
        return true;
    }
    // A timer of the system may be early by its tick, never by half of a whole slice.
    return slice_ < kLongest || now_ - sliceBegan_ >= Counts(kLongest) / 2;
}

bool ReadSlices::LooksForStop() {
    if (now_ < lookAt_) return false;
    lookAt_ = now_ + Counts(kLongest) / 2;
    return true;
}

}  // namespace corvex
