#include "controls/chart3d/Chart3DKeys.h"

namespace corvex {

namespace {

constexpr float kTurnStep = 0.05F;  // radians
constexpr float kShiftStep = 2.0F, kShiftEnd = 300.0F;
constexpr float kScaleStep = 0.02F, kSmallestToShrink = 0.2F;

}  // namespace

void Chart3DKeys::OnDown(Chart3DKey key) {
    chart_.Hold(static_cast<std::uint32_t>(key), true);
    const auto [control, shift] = chart_.held;
    const bool hasChanged = control && shift ? Scale(key) : control ? Turn(key) : shift && Shift(key);
    if (hasChanged) host_.Repaint();
}

// Unlike the mouse, the keys turn the box over.
bool Chart3DKeys::Turn(Chart3DKey key) {
    auto& [pitch, yaw, roll] = chart_.space.rotation;
    switch (key) {
        case Chart3DKey::kLeft:
            yaw -= kTurnStep;
            return true;
        case Chart3DKey::kRight:
            yaw += kTurnStep;
            return true;
        case Chart3DKey::kUp:
            pitch -= kTurnStep;
            return true;
        case Chart3DKey::kDown:
            pitch += kTurnStep;
            return true;
        default:
            return false;
    }
}

// The last step goes over the end, and the box goes on following the window's size.
bool Chart3DKeys::Shift(Chart3DKey key) {
    auto& [x, y, z] = chart_.space.translation;
    const auto step = [](float& position, float by) {
        if (by < 0.0F ? !(position >= -kShiftEnd) : !(position <= kShiftEnd)) return false;
        position += by;
        return true;
    };
    switch (key) {
        case Chart3DKey::kLeft:
            return step(x, -kShiftStep);
        case Chart3DKey::kRight:
            return step(x, kShiftStep);
        case Chart3DKey::kUp:
            return step(y, kShiftStep);
        case Chart3DKey::kDown:
            return step(y, -kShiftStep);
        default:
            return false;
    }
}

bool Chart3DKeys::Scale(Chart3DKey key) {
    Vector3D& scale = chart_.space.scale;
    const bool shrinks = key == Chart3DKey::kSmaller && scale[0] >= kSmallestToShrink;
    if (!shrinks && key != Chart3DKey::kLarger) return false;
    for (float& factor : scale)
        factor += shrinks ? -kScaleStep : kScaleStep;
    return true;
}

}  // namespace corvex
