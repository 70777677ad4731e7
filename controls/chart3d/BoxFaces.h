// The box about the data: its corners and faces, and which of the faces are behind the data.
#pragma once

#include <array>

#include "controls/chart3d/Projection.h"

namespace corvex {

// In the order in which they are drawn.
enum class BoxFace { kFloor, kCeiling, kMinimumDepth, kMinimumX, kMaximumDepth, kMaximumX };

// A face lies where the range of one axis ends.
struct BoxPlane {
    Chart3DAxis axis = kVerticalAxis;
    bool isMaximum = false;
};
BoxPlane PlaneOf(BoxFace face);

// In the order in which they are drawn: the floor or the ceiling, and two walls. Pitch and yaw in radians.
std::array<BoxFace, 3> FacesBehind(float pitch, float yaw);

// A place in the coordinates of the axes, one by one.
using BoxPlace = std::array<float, kChart3DAxisCount>;
YUpPoint SeenAt(const BoxPlace& place, const Projection& projection);
float EndOf(ChartRange range, bool isMaximum);

// The corners of a face, in the order of its outline.
std::array<YUpPoint, 4> CornersOf(BoxFace face, const Chart3DSpace& space, const Projection& projection);

}  // namespace corvex
