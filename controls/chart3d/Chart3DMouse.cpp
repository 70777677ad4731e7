#include "controls/chart3d/Chart3DMouse.h"

#include <algorithm>
#include <utility>

namespace corvex {

namespace {

constexpr float kTurnPerPixel = 0.01F, kSteepest = 1.57F;  // radians
constexpr float kShiftPerPixel = 0.45F;
constexpr float kScalePerPixel = 0.01F, kSmallestScale = 0.05F;

}  // namespace

void Chart3DMouse::OnDown(YUpPoint place, Chart3DModifiers held) {
    EndGesture();
    const std::uint32_t own = gestures_;
    const bool isBanding = std::ranges::any_of(
        chart_.plots, [](const auto& plot) { return plot->Is(kPlotBand) && !plot->Is(kPlotHidden); });
    gesture_ = {
        .isDown = true, .isBanding = isBanding, .hidesPointer = gesture_.hidesPointer, .start = place, .last = place};
    chart_.held = held;
    host_.Capture();
    PickPoints(place, held.control, own);
}

// Who is told of a point, or paints, may end the gesture or begin another: then this one picks no more. Whether nothing
// was found, the last plot decides that was looked through.
void Chart3DMouse::PickPoints(YUpPoint place, bool control, std::uint32_t own) {
    bool hasFound = false;
    for (std::size_t i = 0; i < chart_.plots.size(); ++i) {
        if (gestures_ != own) return;
        const QZChart3DPlot& plot = *chart_.plots[i];
        if (!Chart3DSelection::CanPick(plot)) continue;
        const auto point = selection_.Find(plot, place);
        hasFound = point.has_value();
        if (!hasFound) continue;
        if (plot.Is(kPlotAnyDrag)) gesture_.isDragging = true;
        selection_.Click(i, *point, control);
    }
    if (hasFound || control) return;
    selection_.Clear();
    host_.Repaint();
}

void Chart3DMouse::OnDoubleClick(YUpPoint place, Chart3DModifiers held) {
    selection_.Clear();
    OnDown(place, held);
}

// The system tells of moves that are none, and a band as small as that would take back what the click has selected.
void Chart3DMouse::OnMove(YUpPoint place) {
    if (!gesture_.isDown || place == gesture_.last) return;
    const YUpPoint last = std::exchange(gesture_.last, place);
    const int across = place.x - last.x, up = place.y - last.y;
    const auto [control, shift] = chart_.held;
    if (control && shift) {
        Scale(up);
    } else if (control) {
        Turn(across, up);
    } else if (shift) {
        Shift(across, up);
    } else if (gesture_.isDragging) {
        Drag(up);
    } else if (gesture_.isBanding) {
        DrawBand(place);
    }
}

void Chart3DMouse::HidePointer() {
    if (!std::exchange(gesture_.hidesPointer, true)) host_.HidePointer();
}

// As the box is taken hold of: what is pulled down comes down.
void Chart3DMouse::Turn(int across, int up) {
    HidePointer();
    auto& [pitch, yaw, roll] = chart_.space.rotation;
    yaw += static_cast<float>(across) * kTurnPerPixel;
    pitch = std::clamp(pitch - static_cast<float>(up) * kTurnPerPixel, -kSteepest, kSteepest);
    host_.Repaint();
}

void Chart3DMouse::Shift(int across, int up) {
    HidePointer();
    chart_.isPanned = true;
    auto& [x, y, z] = chart_.space.translation;
    x += static_cast<float>(across) * kShiftPerPixel;
    y += static_cast<float>(up) * kShiftPerPixel;
    host_.Repaint();
}

void Chart3DMouse::Scale(int up) {
    HidePointer();
    Vector3D& scale = chart_.space.scale;
    scale.fill(std::max(kSmallestScale, scale[0] + static_cast<float>(up) * kScalePerPixel));
    host_.Repaint();
}

void Chart3DMouse::Drag(int up) {
    HidePointer();
    if (!selection_.Drag(up, limits[kVerticalAxis])) return;
    ranges_.Recompute();
    host_.Repaint();
}

void Chart3DMouse::DrawBand(YUpPoint corner) {
    chart_.band = YUpBox{gesture_.start, corner};
    selection_.SelectIn(*chart_.band);
    host_.Repaint();
}

// The parent is told when the mouse is everybody's again, as it may show a box.
void Chart3DMouse::EndGesture() {
    ++gestures_;
    const Gesture ended = std::exchange(gesture_, {});
    chart_.band.reset();
    if (ended.hidesPointer) host_.ShowPointer();
    host_.Release();
    if (ended.isDragging) host_.Tell(kDragHasEnded, nullptr, 0, 0);
    if (ended.isBanding) host_.Repaint();
}

}  // namespace corvex
