// The keyboard of a 3-D chart.
#pragma once

#include "controls/chart3d/Chart3DHost.h"

namespace corvex {

// By the numbers in which the system tells them.
enum class Chart3DKey : std::uint32_t {
    kShift = 0x10,
    kControl = 0x11,
    kLeft = 0x25,
    kUp = 0x26,
    kRight = 0x27,
    kDown = 0x28,
    kSmaller = 0xDB,
    kLarger = 0xDD,
};

class Chart3DKeys {
public:
    Chart3DKeys(Chart3DModel& chart, IChart3DHost& host) : chart_(chart), host_(host) {}

    // Others than those above do nothing.
    void OnDown(Chart3DKey key);
    void OnUp(Chart3DKey key) { chart_.Hold(static_cast<std::uint32_t>(key), false); }

private:
    // Whether the box stands otherwise now.
    bool Turn(Chart3DKey key);
    bool Shift(Chart3DKey key);
    bool Scale(Chart3DKey key);

    Chart3DModel& chart_;
    IChart3DHost& host_;
};

}  // namespace corvex
