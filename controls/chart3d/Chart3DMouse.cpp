#include "controls/chart3d/Chart3DMouse.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr float kTurnPerPixel = 0.01F, kSteepest = 1.57F;  // radians
constexpr float kShiftPerPixel = 0.45F;
constexpr float kScalePerPixel = 0.01F, kSmallestScale = 0.05F;

}  // namespace

bool Chart3DMouse::HasBand() const {
    return std::ranges::any_of(chart_.plots,
                               [](const auto& plot) { return plot->Is(kPlotBand) && !plot->Is(kPlotHidden); });
}

// Once the gesture is over this one picks no more. Whether nothing was found, the last plot decides that was looked
// through.
void Chart3DMouse::Pick(YUpPoint place, bool control, std::uint32_t gesture) {
    bool hasFound = false;
    for (std::size_t i = 0; i < chart_.plots.size(); ++i) {
        if (!IsLatest(gesture)) return;
        const QZChart3DPlot& plot = *chart_.plots[i];
        if (!Chart3DSelection::CanPick(plot)) continue;
        const auto point = selection_.Find(plot, place);
        hasFound = point.has_value();
        if (!hasFound) continue;
        if (plot.Is(kPlotAnyDrag)) BeginDrag();
        selection_.Click(i, *point, control);
    }
    if (hasFound || control) return;
    selection_.Clear();
    host_.Repaint();
}

void Chart3DMouse::MoveHeld(int across, int up) {
    HidePointer();
    const auto [control, shift] = chart_.held;
    if (control && shift) {
        Scale(up);
    } else if (control) {
        Turn(across, up);
    } else {
        Shift(across, up);
    }
    host_.Repaint();
}

// As the box is taken hold of: what is pulled down comes down.
void Chart3DMouse::Turn(int across, int up) {
    auto& [pitch, yaw, roll] = chart_.space.rotation;
    yaw += static_cast<float>(across) * kTurnPerPixel;
    pitch = std::clamp(pitch - static_cast<float>(up) * kTurnPerPixel, -kSteepest, kSteepest);
}

void Chart3DMouse::Shift(int across, int up) {
    chart_.isPanned = true;
    auto& [x, y, z] = chart_.space.translation;
    x += static_cast<float>(across) * kShiftPerPixel;
    y += static_cast<float>(up) * kShiftPerPixel;
}

void Chart3DMouse::Scale(int up) {
    Vector3D& scale = chart_.space.scale;
    scale.fill(std::max(kSmallestScale, scale[0] + static_cast<float>(up) * kScalePerPixel));
}

void Chart3DMouse::Drag(int, int up) {
    if (!selection_.Drag(up, limits[kVerticalAxis])) return;
    ranges_.Recompute();
    host_.Repaint();
}

}  // namespace corvex
