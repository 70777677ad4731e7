#include "controls/chart/PointDrag.h"

#include <cmath>

namespace corvex {

float ShiftOf(int pixels, float span, float length) {
    if (length == 0.0F) return 0.0F;
    const float shift = static_cast<float>(pixels) * span / length;
    return std::isfinite(shift) ? shift : 0.0F;
}

float ShiftWithin(float value, float shift, ChartRange limits) {
    if (!std::isfinite(value)) return shift;
    if (value + shift < limits.minimum) return limits.minimum - value;
    if (value + shift > limits.maximum) return limits.maximum - value;
    return shift;
}

}  // namespace corvex
