#include "controls/analoggauge/DialGeometryModel.h"

#include <cmath>
#include <limits>

namespace corvex {

namespace {

constexpr double kPi = 3.141592654;  // in these digits: points depend on them
constexpr double kSin70 = 0.9396926164627075, kCos70 = 0.34202009439468384;
constexpr int kNowhere = -10000;

enum Alignment : unsigned { kLeft = 0, kTop = 0, kRight = 2, kCentre = 6, kBaseline = 24 };

double Radians(double angle) {
    return angle * kPi / 180.0;
}

// Too large for a float is infinite, where the language leaves it open.
float ToFloat(double value) {
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
        return std::copysign(std::numeric_limits<float>::infinity(), value < 0.0 ? -1.0f : 1.0f);
    }
    return static_cast<float>(value);
}

int Cut(double coordinate) {
    return std::isfinite(coordinate) ? static_cast<int>(coordinate) : kNowhere;
}

int Rounded(double coordinate) {
    const double fraction = std::fmod(coordinate, 1.0);
    return Cut(fraction < 0.5 ? coordinate - fraction : coordinate + (1.0 - fraction));
}

DialPoint RoundedPoint(DialPoint centre, int radius, double angle) {
    const double radians = Radians(angle);
    return {Rounded(centre.x + radius * std::cos(radians)), Rounded(centre.y + radius * std::sin(radians))};
}

double Between(double from, double to, unsigned step, unsigned steps) {
    return (to - from) * step / steps + from;
}

}  // namespace

float DialAngle(const DialScale& scale, float value) {
    const double minimum = scale.rangeMinimum, start = scale.sweepStart;
    const double part = (value - minimum) / (scale.rangeMaximum - minimum);
    return ToFloat((scale.sweepEnd - start) * part + start - 270.0);
}

DialPoint PlainPoint(DialPoint centre, int radius, double angle) {
    const double radians = Radians(angle);
    return {centre.x + Cut(radius * std::cos(radians)), centre.y + Cut(radius * std::sin(radians))};
}

DialLine RadialLine(DialPoint centre, int fromRadius, int toRadius, double angle) {
    return {RoundedPoint(centre, fromRadius, angle), RoundedPoint(centre, toRadius, angle)};
}

unsigned LabelAlignment(double angle) {
    const double s = std::sin(-Radians(angle)), c = std::cos(-Radians(angle));
    const bool narrow = -kCos70 <= c && c <= kCos70;
    if (0.0 <= s && s <= kSin70) return c >= kCos70 ? kRight | kTop : kLeft | kTop;
    if (s >= kSin70 && narrow) return kCentre | kTop;
    if (-kSin70 <= s && s <= 0.0) return c <= kCos70 ? kLeft | kBaseline : kRight | kBaseline;
    if (s < -kSin70 && narrow) return kCentre | kBaseline;
    return kLeft | kTop;
}

std::vector<DialTick> DialTicks(const DialScale& scale, unsigned majorCount, unsigned minorDivisions) {
    std::vector<DialTick> ticks;
    float previous = 0.0f;
    for (unsigned i = 0; i < majorCount; ++i) {
        const float value = ToFloat(Between(scale.rangeMinimum, scale.rangeMaximum, i, majorCount - 1));
        ticks.push_back({value, true});
        for (unsigned j = 1; i > 0 && j < minorDivisions; ++j)
            ticks.push_back({ToFloat(Between(previous, value, j, minorDivisions)), false});
        previous = value;
    }
    return ticks;
}

}  // namespace corvex
