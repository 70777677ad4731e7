// How far the points of a chart reach along one axis.
#pragma once

#include <algorithm>
#include <cmath>

#include "controls/chart/ChartTerms.h"

namespace corvex {

// The smallest and the largest finite coordinate; the wrong way round where there is none.
struct ChartExtent {
    float minimum = 3.4028235e38F, maximum = -3.4028235e38F;

    void Take(float value) {
        if (!std::isfinite(value)) return;
        minimum = std::min(minimum, value);
        maximum = std::max(maximum, value);
    }
    bool IsEmpty() const { return minimum > maximum; }
    bool IsAtEnd(float value) const { return value == minimum || value == maximum; }
    bool LeavesOut(const ChartExtent& other) const { return other.minimum < minimum || other.maximum > maximum; }
    ChartRange Range() const { return {minimum, maximum}; }
};

}  // namespace corvex
