#include "controls/chart3d/Chart3DRanges.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr Chart3DAxis kChart3DAxes[] = {kXAxis, kDepthAxis, kVerticalAxis};
constexpr std::uint32_t kAllChart3DAxes = 7;  // a bit for each
constexpr std::uint32_t kFollowStyles[] = {kChart3DXFollows, kChart3DDepthFollows, kChart3DVerticalFollows};
constexpr std::uint32_t kTickStyles[] = {kChart3DXTicks, kChart3DDepthTicks, kChart3DVerticalTicks};
constexpr Chart3DCode kRangeCodes[] = {kXRangeHasChanged, kDepthRangeHasChanged, kVerticalRangeHasChanged};
constexpr ChartLabelKind kTickLabels[] = {kXTickLabel, kDepthTickLabel, kVerticalTickLabel};

template <class Point>
auto& CoordinateOf(Point& point, Chart3DAxis axis) {
    return axis == kXAxis ? point.x : axis == kDepthAxis ? point.y : point.z;
}

}  // namespace

bool Chart3DRanges::Follows(Chart3DAxis axis) const {
    return chart_.Has(kFollowStyles[axis]);
}

void Chart3DRanges::Measure() {
    extents_ = {};
    for (const auto& plot : chart_.plots) {
        for (const Point3D& point : plot->Points()) {
            for (const Chart3DAxis axis : kChart3DAxes)
                extents_[axis].Take(CoordinateOf(point, axis));
        }
    }
    isKnown_ = true;
}

void Chart3DRanges::Recompute() {
    if (!chart_.Has(kChart3DAnyFollows)) return Forget();
    Measure();
    Show(kAllChart3DAxes);
}

void Chart3DRanges::OnPointSet(const Point3D& before, const Point3D& now) {
    if (!isKnown_ || !chart_.Has(kChart3DAnyFollows)) return Recompute();
    const auto former = extents_;
    const bool mayShrink = std::ranges::any_of(
        kChart3DAxes, [&](Chart3DAxis axis) { return former[axis].IsAtEnd(CoordinateOf(before, axis)); });
    if (mayShrink) {
        Measure();
    } else {
        for (const Chart3DAxis axis : kChart3DAxes)
            extents_[axis].Take(CoordinateOf(now, axis));
    }
    std::uint32_t grown = 0;
    bool hasShrunk = false;
    for (const Chart3DAxis axis : kChart3DAxes) {
        hasShrunk = hasShrunk || extents_[axis].LeavesOut(former[axis]);
        if (former[axis].LeavesOut(extents_[axis])) grown |= 1U << axis;
    }
    if (hasShrunk || grown != 0) Show(hasShrunk ? kAllChart3DAxes : grown);
}

// All ranges stand before the parent hears of the first, as it may do anything then.
void Chart3DRanges::Show(std::uint32_t axes) {
    for (const Chart3DAxis axis : kChart3DAxes) {
        const ChartExtent& extent = extents_[axis];
        if (!Follows(axis) || extent.IsEmpty()) axes &= ~(1U << axis);
        if ((axes & 1U << axis) != 0) chart_.space.ranges[axis] = extent.Range();
    }
    for (const Chart3DAxis axis : kChart3DAxes) {
        if ((axes & 1U << axis) != 0) host_.Tell(kRangeCodes[axis], nullptr, 0, 0);
    }
    RebuildTicks();
}

void Chart3DRanges::RebuildTicks() {
    for (const Chart3DAxis axis : kChart3DAxes) {
        if (!chart_.Has(kTickStyles[axis])) continue;
        const auto labeller = [this, axis](float value, std::string& label) {
            Point3D point;
            CoordinateOf(point, axis) = value;
            auto own = host_.LabelOf(kTickLabels[axis], point, nullptr, 0, 0);
            if (own) label = std::move(*own);
            return own.has_value();
        };
        chart_.ticks[axis].Spread(TicksOf(chart_.space.boxSize, chart_.tickSpacing[axis]), chart_.space.ranges[axis],
                                  labeller);
    }
}

}  // namespace corvex
