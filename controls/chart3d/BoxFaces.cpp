#include "controls/chart3d/BoxFaces.h"

#include <cmath>

namespace corvex {

namespace {

// The corners are numbered by bits: 1 for maximum X, 2 for maximum depth, 4 for maximum vertical.
struct BoxFaceForm {
    BoxPlane plane;
    std::array<unsigned, 4> corners;
};

constexpr BoxFaceForm kBoxFaces[] = {
    {{kVerticalAxis, false}, {0, 1, 3, 2}},  //
    {{kVerticalAxis, true}, {4, 5, 7, 6}},   //
    {{kDepthAxis, false}, {0, 4, 5, 1}},     //
    {{kXAxis, false}, {0, 2, 6, 4}},         //
    {{kDepthAxis, true}, {2, 3, 7, 6}},      //
    {{kXAxis, true}, {1, 3, 7, 5}},          //
};

constexpr float kHalfTurn = 3.1415927F, kTurn = 6.2831855F;

// Brought to one turn, from 0 to 2 pi.
float NormalAngle(float radians) {
    const float turns = radians / kTurn;
    const float angle = (turns - std::trunc(turns)) * 2.0F * kHalfTurn;
    return angle < 0.0F ? angle + kTurn : angle;
}

}  // namespace

BoxPlane PlaneOf(BoxFace face) {
    return kBoxFaces[static_cast<std::size_t>(face)].plane;
}

std::array<BoxFace, 3> FacesBehind(float pitch, float yaw) {
    using enum BoxFace;
    const BoxFace level = NormalAngle(pitch) < kHalfTurn ? kCeiling : kFloor;
    const float angle = NormalAngle(yaw);
    if (angle < kHalfTurn / 2.0F) return {level, kMinimumX, kMaximumDepth};
    if (angle < kHalfTurn) return {level, kMinimumDepth, kMinimumX};
    if (angle < 4.712389F) return {level, kMinimumDepth, kMaximumX};
    return {level, kMaximumDepth, kMaximumX};
}

float EndOf(ChartRange range, bool isMaximum) {
    return isMaximum ? range.maximum : range.minimum;
}

YUpPoint SeenAt(const BoxPlace& place, const Projection& projection) {
    return projection.Project(place[kXAxis], place[kVerticalAxis], place[kDepthAxis]).at;
}

std::array<YUpPoint, 4> CornersOf(BoxFace face, const Chart3DSpace& space, const Projection& projection) {
    std::array<YUpPoint, 4> corners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const unsigned corner = kBoxFaces[static_cast<std::size_t>(face)].corners[i];
        const auto end = [&](Chart3DAxis axis) { return EndOf(space.ranges[axis], (corner >> axis & 1) != 0); };
        corners[i] = SeenAt({end(kXAxis), end(kDepthAxis), end(kVerticalAxis)}, projection);
    }
    return corners;
}

}  // namespace corvex
