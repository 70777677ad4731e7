// What the user's hand does on a chart with points: the keys that are held, and the rubber band.
#pragma once

#include <optional>

#include "controls/chart/ChartTerms.h"

namespace corvex {

// What is held down while the mouse or an arrow key speaks.
struct ChartModifiers {
    bool control = false, shift = false;
};

// The part of a chart's model that its mouse and keys leave there.
struct ChartHand {
    std::optional<YUpBox> band;  // while it is drawn
    ChartModifiers held;

    // A key by the number in which the system tells it; others than the two are not held.
    void Hold(std::uint32_t key, bool isDown) {
        if (key == 0x10) held.shift = isDown;
        if (key == 0x11) held.control = isDown;
    }
};

}  // namespace corvex
