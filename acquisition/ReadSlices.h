// The waits of one read, cut so short that a stop is seen in time.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/Clock.h"
#include "platform/SerialTimes.h"

namespace corvex {

// Tells how long each wait for one more byte may be, so that the whole read keeps its limits: the total runs from the
// construction, the gap from the byte before and on across slices. Bytes are waited for one at a time, since only then
// the moment of each is known and the gap ends when it would have ended in one piece.
//
// Times are milliseconds. One thread.
class ReadSlices {
public:
    static constexpr std::uint32_t kLongest = 50;

    // False when the limits are such that no wait can outlast a slice, or that cutting would change what they mean.
    static bool AreNeeded(const SerialTimeouts& times);

    ReadSlices(const ReadLimits& limits, IClock& clock);

    // The wait for the next byte, 1 to kLongest; 0 when the gap or the total is over. The last one before that is the
    // remainder, rounded up: a read never ends early.
    std::uint32_t Next();
    // What the wait brought. False when it was no wait at all: a call that failed brings nothing and takes no time.
    bool Took(bool byteCame);
    // It is time to look for a stop: at least once a slice, also while bytes keep coming, and not at once, so that what
    // lies in the driver's queue already is read to its end.
    bool LooksForStop();

    // Over by the total, with a byte as the last that happened: what came with that byte may still lie in the queue.
    bool EndedBehindByte() const { return byteCame_ && end_ && now_ >= *end_; }

private:
    using Moment = std::optional<std::int64_t>;  // none: never

    std::int64_t Counts(std::int64_t milliseconds) const { return milliseconds * frequency_ / 1000; }

    IClock& clock_;
    const std::int64_t frequency_;
    const std::optional<std::int64_t> gap_;
    std::int64_t now_, sliceBegan_, lookAt_;
    std::uint32_t slice_ = 0;
    Moment end_, gapEnd_;
    bool byteCame_ = false;
};

}  // namespace corvex
