// Where the values of a 2-D chart stand on it.
#pragma once

#include <array>

#include "controls/chart2d/Chart2DTerms.h"

namespace corvex {

// One axis of the plot, which has a margin of 70 pixels on every side.
class Chart2DScale {
public:
    static constexpr int kMargin = 70;

    // Of a client with so many pixels along it.
    Chart2DScale(ChartRange range, int client);

    // Truncated, and not kept to the plot. A range of no span has all its numbers at the start.
    int ToPixel(float value) const {
        // Divided in the end, so that what is even stays so; in doubles no product of these overflows.
        return SaturatedPixel(kMargin + (static_cast<double>(value) - minimum_) * pixels_ / span_);
    }
    // Of the plot, where it has any room.
    int Start() const { return kMargin; }
    int End() const { return kMargin + length_; }
    int Length() const { return length_; }

private:
    double minimum_, span_, pixels_;
    int length_;
};

class Chart2DSpace {
public:
    Chart2DSpace(const std::array<ChartRange, kChart2DAxisCount>& ranges, int width, int height)
        : ranges_(ranges), scales_{Chart2DScale(ranges[kChart2DX], width), Chart2DScale(ranges[kChart2DY], height)} {}

    const Chart2DScale& Along(Chart2DAxis axis) const { return scales_[axis]; }
    YUpPoint PlaceOf(const Point2D& point) const {
        return {scales_[kChart2DX].ToPixel(point.x), scales_[kChart2DY].ToPixel(point.y)};
    }
    // The axis's line: through the origin, where that is in the other one's range.
    bool HasAxis(Chart2DAxis axis) const;
    // The pixel on the other axis at which its line stands, or its edge of the plot when it has none.
    int LevelOf(Chart2DAxis axis) const;
    // There is none where the margins take all.
    bool HasPlot() const { return scales_[kChart2DX].Length() > 0 && scales_[kChart2DY].Length() > 0; }

private:
    std::array<ChartRange, kChart2DAxisCount> ranges_;
    std::array<Chart2DScale, kChart2DAxisCount> scales_;
};

constexpr Chart2DAxis OtherAxis(Chart2DAxis axis) {
    return axis == kChart2DX ? kChart2DY : kChart2DX;
}

}  // namespace corvex
