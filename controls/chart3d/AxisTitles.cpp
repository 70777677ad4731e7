#include "controls/chart3d/AxisTitles.h"

#include <algorithm>
#include <cmath>

#include "controls/chart3d/BoxFaces.h"

namespace corvex {

namespace {

constexpr int kVerticalTitleGap = 20;  // pixels more than the pad

struct BoxEdge {
    YUpPoint minimum, maximum;

    double MiddleX() const { return (minimum.x + maximum.x) / 2.0; }
    double MiddleY() const { return (minimum.y + maximum.y) / 2.0; }
};

// The edge along an axis; `place` tells where it is on the other two.
BoxEdge EdgeOf(Chart3DAxis axis, BoxPlace place, const Chart3DModel& chart, const Projection& projection) {
    BoxEdge edge;
    place[axis] = chart.space.ranges[axis].minimum;
    edge.minimum = SeenAt(place, projection);
    place[axis] = chart.space.ranges[axis].maximum;
    edge.maximum = SeenAt(place, projection);
    return edge;
}

// Beside the middle of an edge, as far as the pad. Below the box that is at a right angle to the edge; above it the
// sideways part keeps its sign, and the title comes nearer to the box.
YUpPoint PlaceBeside(const BoxEdge& edge, int pad, bool isLeft, bool isAbove) {
    const double halfX = (edge.maximum.x - edge.minimum.x) / 2.0, halfY = (edge.minimum.y - edge.maximum.y) / 2.0;
    const double half = std::hypot(halfX, halfY);
    double dx = 0.0, dy = 0.0;
    if (half > 0.0) {
        const double angle = std::acos(std::clamp(halfY / half, -1.0, 1.0));
        dx = pad * std::cos(angle);
        dy = pad * std::sin(angle);
    }
    return {SaturatedPixel(edge.MiddleX() + (isLeft ? -dx : dx)),
            SaturatedPixel(edge.MiddleY() + (isAbove ? dy : -dy))};
}

}  // namespace

std::array<AxisTitle, 4> AxisTitlesOf(const Chart3DModel& chart, const Projection& projection) {
    const float c = CosineOf(chart.space.rotation[1]), s = SineOf(chart.space.rotation[1]);
    const bool risen = SineOf(chart.space.rotation[0]) > 0.0F;
    // Which edges of the floor face the viewer.
    const bool both = c > 0.0F && s > 0.0F;
    const bool isMinimumDepth = both || (c > 0.0F && s < 0.0F);  // for X
    const bool isMaximumDepth = both || (c < 0.0F && s < 0.0F);  // for the vertical axis at maximum X
    const bool isMaximumX = both || (c < 0.0F && s > 0.0F);      // for the depth
    const auto& ranges = chart.space.ranges;
    const float level = EndOf(ranges[kVerticalAxis], risen);

    const auto upright = [&](bool maximumX, bool maximumDepth) {
        return EdgeOf(kVerticalAxis, {EndOf(ranges[kXAxis], maximumX), EndOf(ranges[kDepthAxis], maximumDepth), 0.0F},
                      chart, projection);
    };
    const BoxEdge first = upright(true, isMaximumDepth), second = upright(false, !isMaximumDepth);
    const bool isFirstLeft = first.MiddleX() < second.MiddleX();
    const auto turned = [&](const BoxEdge& edge, bool isLeft) {
        const int away = chart.labelPad + kVerticalTitleGap;
        return AxisTitle{kVerticalAxis,
                         {SaturatedPixel(edge.MiddleX() + (isLeft ? -away : away)), SaturatedPixel(edge.MiddleY())},
                         TextSide::kCentred,
                         true};
    };
    const BoxEdge alongX = EdgeOf(kXAxis, {0.0F, EndOf(ranges[kDepthAxis], !isMinimumDepth), level}, chart, projection);
    const BoxEdge alongDepth = EdgeOf(kDepthAxis, {EndOf(ranges[kXAxis], isMaximumX), 0.0F, level}, chart, projection);
    const bool endsAtX = isMinimumDepth == isMaximumX;
    return {turned(first, isFirstLeft), turned(second, !isFirstLeft),
            AxisTitle{kXAxis, PlaceBeside(alongX, chart.labelPad, c >= 0.0F, risen),
                      endsAtX ? TextSide::kLeft : TextSide::kRight, false},
            AxisTitle{kDepthAxis, PlaceBeside(alongDepth, chart.labelPad, s >= 0.0F, risen),
                      endsAtX ? TextSide::kRight : TextSide::kLeft, false}};
}

}  // namespace corvex
