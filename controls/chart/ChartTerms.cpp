#include "controls/chart/ChartTerms.h"

#include <algorithm>
#include <cmath>

namespace corvex {

int SaturatedPixel(double position) {
    constexpr double kEdge = 67108864.0;
    if (std::isnan(position)) return static_cast<int>(-kEdge);
    return static_cast<int>(std::clamp(position, -kEdge, kEdge));
}

}  // namespace corvex
