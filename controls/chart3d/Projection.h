// From the coordinates of a 3-D chart to places on the screen. The chart is orthographic: the camera only shifts.
#pragma once

#include <array>
#include <cmath>

#include "controls/chart/ChartTerms.h"
#include "controls/chart3d/Chart3DTerms.h"

namespace corvex {

// Acts on row vectors from the left, row after row: what shifts stands in the last row.
using Matrix3D = std::array<float, 16>;
using Vector3D = std::array<float, 3>;

// Where the box stands and how it is looked at.
struct Chart3DSpace {
    std::array<ChartRange, kChart3DAxisCount> ranges;
    bool normalises = true;  // coordinates are scaled from their range to the box
    float boxSize = 255.0F;  // pixels
    Vector3D scale{1.0F, 1.0F, 1.0F};
    Vector3D translation{128.0F, 60.0F, 0.0F};  // pixels
    Vector3D rotation{-0.5F, 0.707F, 0.0F};     // radians: pitch, yaw, and one without effect
    Vector3D pivot{127.5F, 127.5F, 127.5F};     // pixels, of the box
};

// A place on the screen, and how far behind it the point lies.
struct ProjectedPoint {
    YUpPoint at;
    int depth = 0;
};

// The projection of one paint: what the space was when it was built. Whole numbers are truncated toward zero, as
// SaturatedPixel does it.
class Projection {
public:
    explicit Projection(const Chart3DSpace& space);

    // Where the range of an axis has no extent, its coordinate is 0. A height that is not finite stands at the range's
    // minimum.
    ProjectedPoint Project(float x, float vertical, float depth) const;
    ProjectedPoint Project(const Point3D& point) const { return Project(point.x, point.z, point.y); }
    // Where that height stands on the vertical axis.
    float HeightOf(float vertical) const { return std::isfinite(vertical) ? vertical : ranges_[kVerticalAxis].minimum; }

private:
    std::array<ChartRange, kChart3DAxisCount> ranges_;
    std::array<float, kChart3DAxisCount> spans_;
    bool normalises_;
    float boxSize_;
    Matrix3D matrix_;
};

// Computed in doubles, as every system rounds those alike.
float CosineOf(float radians);
float SineOf(float radians);
// maximum - minimum.
float SpanOf(ChartRange range);

}  // namespace corvex
