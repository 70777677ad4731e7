// Where the titles of a 3-D chart's axes stand about the box.
#pragma once

#include "controls/chart3d/Chart3DModel.h"

namespace corvex {

struct AxisTitle {
    Chart3DAxis axis = kXAxis;
    YUpPoint at;  // its upper edge is level with it
    TextSide side = TextSide::kCentred;
    bool isTurned = false;  // reads downward
};

// The titles of the vertical axis twice, of X and of the depth.
std::array<AxisTitle, 4> AxisTitlesOf(const Chart3DModel& chart, const Projection& projection);

}  // namespace corvex
