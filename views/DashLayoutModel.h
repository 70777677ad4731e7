// Where the gauges of a dashboard stand.
#pragma once

#include <cstdint>

#include "definition/ADXDashboard.h"

namespace corvex {

// In pixels; right and bottom are the first ones outside.
struct PixelArea {
    std::int32_t left = 0, top = 0, right = 0, bottom = 0;
};

// The entry's percentages of the area, which may be empty or turned inside out: a window can be that small. Percentages
// above 100 lead out of it.
PixelArea GaugePlace(const ADXDGENTRY& entry, const PixelArea& area);

}  // namespace corvex
