// The axes of a 2-D chart: ranges that follow the data, and ticks that follow the ranges.
#pragma once

#include "controls/chart/ChartExtent.h"
#include "controls/chart2d/Chart2DHost.h"

namespace corvex {

class Chart2DRanges {
public:
    Chart2DRanges(Chart2DModel& chart, IChart2DHost& host) : chart_(chart), host_(host) {}

    bool Follows(Chart2DAxis axis) const;
    // Where null is given, that end stays; a maximum below its minimum is raised to it. Nothing for one that follows.
    void Set(Chart2DAxis axis, const float* minimum, const float* maximum);
    // Every range that follows the data takes their extent, of hidden series too, and the parent hears of those that
    // have changed. One without a point stays.
    void Recompute();
    // The same for a point that came, went or both.
    void OnPointChanged(const Point2D* before, const Point2D* now);
    // Of the axes whose ticks the chart makes: one every so many pixels, and one more than those for Y.
    void RebuildTicks();

private:
    void Measure();
    void Show();

    Chart2DModel& chart_;
    IChart2DHost& host_;
    std::array<ChartExtent, kChart2DAxisCount> extents_;  // of all points, while one of them is followed
};

}  // namespace corvex
