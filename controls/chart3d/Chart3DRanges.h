// The axes of a 3-D chart: ranges that follow the data, and ticks that follow the ranges.
#pragma once

#include "controls/chart/ChartExtent.h"
#include "controls/chart3d/Chart3DHost.h"

namespace corvex {

class Chart3DRanges {
public:
    Chart3DRanges(Chart3DModel& chart, IChart3DHost& host) : chart_(chart), host_(host) {}

    bool Follows(Chart3DAxis axis) const;
    // Every range that follows the data takes their extent, and the parent hears of each. Nothing while none does.
    void Recompute();
    // The same for one stored point. Where no extent shrinks by it, the parent hears only of those that grow.
    void OnPointSet(const Point3D& before, const Point3D& now);
    // Points have changed otherwise.
    void Forget() { isKnown_ = false; }
    // Of the axes whose ticks the chart makes.
    void RebuildTicks();

private:
    void Measure();
    void Show(std::uint32_t axes);

    Chart3DModel& chart_;
    IChart3DHost& host_;
    std::array<ChartExtent, kChart3DAxisCount> extents_;
    bool isKnown_ = false;  // the extents are those of all points
};

}  // namespace corvex
