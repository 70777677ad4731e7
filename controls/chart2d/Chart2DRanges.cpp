#include "controls/chart2d/Chart2DRanges.h"

#include <algorithm>

#include "controls/chart/ChartBlocks.h"

namespace corvex {

namespace {

constexpr std::uint32_t kFollowStyles2D[] = {kChart2DXFollows, kChart2DYFollows};
constexpr std::uint32_t kTickStyles2D[] = {kChart2DXTicks, kChart2DYTicks};
constexpr Chart2DCode kRangeCodes2D[] = {kChart2DXRangeChanged, kChart2DYRangeChanged};
constexpr ChartLabelKind kTickLabels2D[] = {kXTickLabel, kDepthTickLabel};
constexpr int kMoreIntervals[] = {0, 1};

}  // namespace

bool Chart2DRanges::Follows(Chart2DAxis axis) const {
    return chart_.Has(kFollowStyles2D[axis]);
}

void Chart2DRanges::Set(Chart2DAxis axis, const float* minimum, const float* maximum) {
    if (Follows(axis)) return;
    ChartRange& range = chart_.ranges[axis];
    SetEnds(range, minimum, maximum);
    if (range.maximum < range.minimum) range.maximum = range.minimum;
    RebuildTicks();
}

void Chart2DRanges::Measure() {
    extents_ = {};
    for (const auto& series : chart_.series) {
        for (const Point2D& point : series->Points()) {
            for (const Chart2DAxis axis : kChart2DAxes)
                extents_[axis].Take(AlongAxis(point, axis));
        }
    }
}

void Chart2DRanges::Recompute() {
    if (!chart_.Has(kChart2DAnyFollows)) return;
    Measure();
    Show();
}

// A point that comes leaves the others where they are; one that goes may have been the last at its end. The extents are
// known, as following begins with measuring them.
void Chart2DRanges::OnPointChanged(const Point2D* before, const Point2D* now) {
    if (!chart_.Has(kChart2DAnyFollows)) return;
    const auto wasAtEnd = [&](Chart2DAxis axis) { return extents_[axis].IsAtEnd(AlongAxis(*before, axis)); };
    if (before != nullptr && std::ranges::any_of(kChart2DAxes, wasAtEnd)) return Recompute();
    if (now == nullptr) return;
    for (const Chart2DAxis axis : kChart2DAxes)
        extents_[axis].Take(AlongAxis(*now, axis));
    Show();
}

// All ranges and ticks stand before the parent hears of the first, as it may do anything then.
void Chart2DRanges::Show() {
    std::array<bool, kChart2DAxisCount> hasChanged{};
    for (const Chart2DAxis axis : kChart2DAxes) {
        const ChartRange extent = extents_[axis].Range();
        if (!Follows(axis) || extents_[axis].IsEmpty() || chart_.ranges[axis] == extent) continue;
        chart_.ranges[axis] = extent;
        hasChanged[axis] = true;
    }
    if (!hasChanged[kChart2DX] && !hasChanged[kChart2DY]) return;
    RebuildTicks();
    for (const Chart2DAxis axis : kChart2DAxes) {
        if (hasChanged[axis]) host_.Tell(kRangeCodes2D[axis], nullptr, 0);
    }
}

void Chart2DRanges::RebuildTicks() {
    for (const Chart2DAxis axis : kChart2DAxes) {
        if (!chart_.Has(kTickStyles2D[axis])) continue;
        const auto labeller = [this, axis](float value, std::string& label) {
            Point2D point;
            AlongAxis(point, axis) = value;
            auto own = host_.LabelOf(kTickLabels2D[axis], point, nullptr, 0);
            if (own) label = std::move(*own);
            return own.has_value();
        };
        const int intervals = chart_.Seen().Along(axis).Length() / chart_.tickSpacing[axis] + kMoreIntervals[axis];
        chart_.ticks[axis].Spread(std::max(intervals, 0) + 1, chart_.ranges[axis], labeller);
    }
}

}  // namespace corvex
