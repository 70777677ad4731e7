// One sample, or the wish to catch up with the last one, on its way to the views.
#pragma once

#include <cstdint>

#include "definition/PacketView.h"
#include "session/LastPacket.h"

namespace corvex {

// In the order in which they read.
enum class SampleViewKind : std::uint32_t { kDash, kList, kHistograms, kMonitors };
inline constexpr std::uint32_t kSampleViewKinds = 4;

constexpr std::uint32_t BitOf(SampleViewKind kind) {
    return 1U << static_cast<std::uint32_t>(kind);
}
inline constexpr std::uint32_t kAllSampleViews = (1U << kSampleViewKinds) - 1U;

// All of one moment. The packet is a view of the worker's own bytes, there until the views have read.
struct PublishedSample {
    std::uint32_t views;      // bits of those that are to read it
    double t;                 // seconds of the scan or of the log
    PacketView packet;        // none when there are no new data: the last raw words stand
    std::uint32_t commandId;  // id hash: it is for what belongs to this command and to none
    // With its own command. On the 160-baud path it is the one before `packet`, and a histogram wants that.
    LastPacket last;
};

}  // namespace corvex
