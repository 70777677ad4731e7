// Who shows samples, and what they want to see.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>

#include "session/PublishedSample.h"

namespace corvex {

// One page, or whatever else samples are shown by. All of it on the one thread that shows, which also computes all
// values that are shown.
class ISampleView {
public:
    virtual ~ISampleView() = default;
    // Of every sample, until SampleViews::Announce is called again.
    virtual bool WantsSamples() const = 0;
    // Takes what it needs, and computes. The worker that brings the sample waits for it.
    virtual void Read(const PublishedSample& sample) = 0;
    // Shows what was read last. Nobody waits.
    virtual void Draw() = 0;
};

// Wanted from any thread; everything else on the thread that shows.
class SampleViews {
public:
    // The view outlives its place here; null takes it away.
    void Register(SampleViewKind kind, ISampleView* view);
    // Asks every view again what it wants: after any of them was shown or hidden, or has got something to fill.
    void Announce();
    // Bits of the views that want samples.
    std::uint32_t Wanted() const { return wanted_.load(std::memory_order_relaxed); }

    // Every view that the sample is for and that wants it, in the order of their kinds.
    void Read(const PublishedSample& sample);
    // Those that have read since the last time.
    void Draw();

private:
    std::array<ISampleView*, kSampleViewKinds> views_{};
    std::uint32_t toDraw_ = 0;
    std::atomic<std::uint32_t> wanted_{0};
};

}  // namespace corvex
