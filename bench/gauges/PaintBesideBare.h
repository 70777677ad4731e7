// A paint and the same calls of the system alone, in turns, each until it is on the screen.
#pragma once

#include <functional>

#include "controls/window/GdiObjects.h"

namespace corvex::bench {

// Medians, in microseconds.
struct PaintCost {
    double painted = 0.0, bare = 0.0;
};

// On a bitmap of that size, which is copied to a window in the end. Throws std::runtime_error when the paint does
// something that there is no bare call for.
PaintCost CostOfPaint(int width, int height, int rounds, const std::function<void(HDC)>& paint);

}  // namespace corvex::bench
