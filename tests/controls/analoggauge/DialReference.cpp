#include "tests/controls/analoggauge/DialReference.h"

#include <cmath>

namespace corvex {

namespace {

constexpr double kToRadians = 3.141592654 / 180.0;

}  // namespace

double ReferenceAngle(const ReferenceScale& scale, double value) {
    // From straight down a quarter turn to straight to the right, which the screen counts backward.
    const double clockwiseFromDown =
        scale.start + (scale.end - scale.start) * ((value - scale.minimum) / (scale.maximum - scale.minimum));
    return static_cast<double>(static_cast<float>(clockwiseFromDown - 270.0));
}

ReferencePlace ReferencePoint(int radius, double angle) {
    return {90 + static_cast<int>(radius * std::cos(angle * kToRadians)),
            90 + static_cast<int>(radius * std::sin(angle * kToRadians))};
}

ReferencePlace ReferenceRoundedPoint(int radius, double angle) {
    return {static_cast<int>(std::floor(90.0 + radius * std::cos(angle * kToRadians) + 0.5)),
            static_cast<int>(std::floor(90.0 + radius * std::sin(angle * kToRadians) + 0.5))};
}

unsigned ReferenceAlignment(double angle) {
    double elevation = std::fmod(-angle, 360.0);  // above the horizon, from -180 to 180
    if (elevation > 180.0) elevation -= 360.0;
    if (elevation < -180.0) elevation += 360.0;
    if (elevation > 110.0) return 0;
    if (elevation > 70.0) return 6;
    if (elevation >= 0.0) return 2;
    if (elevation >= -70.0) return 26;
    return elevation >= -110.0 ? 30 : 24;
}

}  // namespace corvex
