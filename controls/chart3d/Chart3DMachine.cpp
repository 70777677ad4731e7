#include "controls/chart3d/Chart3DMachine.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "controls/chart/ChartBlocks.h"

namespace corvex {

namespace {

bool IsColourOfChart(std::uint32_t index) {
    return index < kChart3DColourEnd && index != kPlotStoredColour &&
           (index < kSelectedPointColour || index > kFaceColour);
}

}  // namespace

QZChart3DPlot* Chart3DMachine::AddPlot(std::size_t index, bool redraws) try {
    const std::size_t place = std::min(index, chart.plots.size());
    auto added = std::make_unique<QZChart3DPlot>(owner_);
    QZChart3DPlot* const plot = added.get();
    chart.plots.insert(chart.plots.begin() + static_cast<std::ptrdiff_t>(place), std::move(added));
    ++chart.plotChanges;
    RepaintIf(redraws);
    return plot;
} catch (const std::bad_alloc&) {
    return nullptr;
}

bool Chart3DMachine::DeletePlot(const IQZChart3DPlot* plot, bool redraws) {
    const auto found = std::ranges::find_if(chart.plots, [plot](const auto& one) { return one.get() == plot; });
    if (found == chart.plots.end()) return false;
    if (chart.lastSelected == found->get()) chart.lastSelected = nullptr;
    chart.plots.erase(found);
    ++chart.plotChanges;
    ranges.Forget();
    RepaintIf(redraws);
    return true;
}

void Chart3DMachine::ClearSelection(bool redraws) {
    for (const auto& plot : chart.plots)
        plot->clearSelection(redraws ? 1 : 0);
}

void Chart3DMachine::SetStyle(std::uint32_t bits, bool redraws) {
    chart.style = bits == 0 ? 0 : chart.style | bits;
    if ((bits & kChart3DAnyTicks) != 0) ranges.RebuildTicks();
    if ((bits & kChart3DAnyFollows) != 0) ranges.Recompute();
    RepaintIf(redraws);
}

void Chart3DMachine::ClearStyle(std::uint32_t bits, bool redraws) {
    chart.style &= ~bits;
    if ((bits & kChart3DXTicks) != 0) chart.ticks[kXAxis].Clear();
    if ((bits & kChart3DDepthTicks) != 0) chart.ticks[kDepthAxis].Clear();
    if ((bits & kChart3DVerticalTicks) != 0) chart.ticks[kVerticalAxis].Clear();
    RepaintIf(redraws);
}

void Chart3DMachine::SetSubtitle(std::string_view text) {
    chart.subtitle = text.substr(0, Chart3DModel::kSubtitleLength);
}

void Chart3DMachine::SetAxisTitle(Chart3DAxis axis, std::string_view text) {
    chart.axisTitles[axis] = text.substr(0, Chart3DModel::kAxisTitleLength);
}

void Chart3DMachine::SetColour(std::uint32_t index, std::uint32_t colour) {
    if (IsColourOfChart(index)) chart.colours[index] = colour;
}

std::uint32_t Chart3DMachine::Colour(std::uint32_t index) const {
    return IsColourOfChart(index) ? chart.colours[index] : 0;
}

void Chart3DMachine::SetRange(Chart3DAxis axis, const float* minimum, const float* maximum) {
    if (ranges.Follows(axis)) return;
    SetEnds(chart.space.ranges[axis], minimum, maximum);
    ranges.RebuildTicks();
}

void Chart3DMachine::SetLimits(Chart3DAxis axis, const float* minimum, const float* maximum) {
    SetEnds(mouse.limits[axis], minimum, maximum);
}

void Chart3DMachine::SetBoxSize(float pixels) {
    chart.space.boxSize = pixels;
    chart.space.pivot.fill(pixels / 2.0F);
    if (!chart.isPanned) {
        chart.space.translation[0] = (static_cast<float>(chart.width) - pixels) / 2.0F;
        chart.space.translation[1] = (static_cast<float>(chart.height) - pixels) / 2.0F;
    }
    ranges.RebuildTicks();
}

void Chart3DMachine::SetRotation(const Vector3D& radians, bool redraws) {
    chart.space.rotation = radians;
    RepaintIf(redraws);
}

void Chart3DMachine::SetTranslation(const Vector3D& pixels, bool redraws) {
    chart.space.translation = pixels;
    RepaintIf(redraws);
}

void Chart3DMachine::SetScale(float factor, bool redraws) {
    chart.space.scale.fill(factor);
    RepaintIf(redraws);
}

// With its coordinates scaled to the box, that has the size with which it fits into the client however it is turned.
void Chart3DMachine::OnSize(int width, int height) {
    chart.width = width;
    chart.height = height;
    if (chart.Has(kChart3DNormalise)) {
        SetBoxSize(static_cast<float>(std::min(width, height) / std::sqrt(3.0)));
    } else {
        ranges.RebuildTicks();
    }
    host_.Repaint();
}

void Chart3DMachine::OnKey(std::uint32_t key, bool isDown) {
    if (isDown) {
        keys.OnDown(static_cast<Chart3DKey>(key));
    } else {
        keys.OnUp(static_cast<Chart3DKey>(key));
    }
}

void Chart3DMachine::OnPointSet(const QZChart3DPlot&, const Point3D& before, const Point3D& now) {
    ranges.OnPointSet(before, now);
}

void Chart3DMachine::RepaintIf(bool isWanted) {
    if (isWanted) host_.Repaint();
}

}  // namespace corvex
