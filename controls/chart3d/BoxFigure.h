// The three faces of the box that are behind the data, with their tick lines, labels and axis titles.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "controls/chart3d/Chart3DModel.h"

namespace corvex {

// The corners are numbered by bits: 1 for maximum X, 2 for maximum depth, 4 for maximum vertical.
enum class BoxFace { kFloor, kCeiling, kMinimumDepth, kMinimumX, kMaximumDepth, kMaximumX };

// An angle brought to one turn, from 0 to below 2 pi.
float NormalAngle(float radians);
// In the order in which they are drawn. Pitch and yaw in radians.
std::array<BoxFace, 3> FacesBehind(float pitch, float yaw);

struct TickLabel {
    std::string text;
    YUpPoint at;  // the text is to one side of it, its middle level with it
    TextSide side = TextSide::kRight;
};

struct TickLine {
    YUpPoint from, to;
    Chart3DAxis axis = kXAxis;
    std::optional<TickLabel> label;  // none that would lie on another
};

struct FaceFigure {
    BoxFace face = BoxFace::kFloor;
    std::array<YUpPoint, 4> corners;
    std::vector<TickLine> ticks;  // none without kChart3DTickLines
};

// The faces in the order in which they are drawn; each one's ticks come before its outline.
std::array<FaceFigure, 3> FacesOf(const Chart3DModel& chart, const Projection& projection,
                                  const ITickTextMeasure& measure);

struct AxisTitle {
    Chart3DAxis axis = kXAxis;
    YUpPoint at;  // its upper edge is level with it
    TextSide side = TextSide::kCentred;
    bool isTurned = false;  // reads downward
};

// The titles of the vertical axis twice, of X and of the depth.
std::array<AxisTitle, 4> AxisTitlesOf(const Chart3DModel& chart, const Projection& projection);

}  // namespace corvex
