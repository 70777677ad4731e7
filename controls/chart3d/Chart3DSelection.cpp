#include "controls/chart3d/Chart3DSelection.h"

#include "controls/chart/PointDrag.h"
#include "controls/chart/PointPick.h"

namespace corvex {

namespace {

// Row by row; ends with the point for which visit(row, column) returns true.
template <class Visit>
bool AnyPoint(const QZChart3DPlot& plot, const Visit& visit) {
    for (int row = 0; row < plot.Rows(); ++row) {
        for (int column = 0; column < plot.Columns(); ++column) {
            if (visit(row, column)) return true;
        }
    }
    return false;
}

}  // namespace

void Chart3DSelection::Clear() {
    for (const auto& plot : chart_.plots)
        plot->clearSelection(0);
}

std::optional<Chart3DSelection::Place> Chart3DSelection::Find(const QZChart3DPlot& plot, YUpPoint pointer) const {
    const Projection projection = chart_.Seen();
    Place found;
    const bool isThere = AnyPoint(plot, [&](int row, int column) {
        found = {row, column};
        return IsNear(projection.Project(plot.At(row, column)).at, pointer, plot.getPointRadius());
    });
    return isThere ? std::optional(found) : std::nullopt;
}

void Chart3DSelection::Click(std::size_t index, Place point, bool control) {
    QZChart3DPlot& plot = *chart_.plots[index];
    const auto [row, column] = point;
    switch (ClickOn(IsSelected(plot.At(row, column)), plot.getSelectedCount(), control)) {
        case PointClick::kKeepGroup:
            plot.SetLast(row, column);
            chart_.lastSelected = &plot;
            break;
        case PointClick::kDeselect:
            plot.selectPoint(row, column, 0, 0);
            host_.Repaint();
            break;
        case PointClick::kSelect:
            if (plot.Is(kPlotPick) || !control) plot.clearSelection(0);
            if (IsSelected(plot.At(row, column))) break;
            plot.selectPoint(row, column, 1, 0);
            chart_.lastSelected = &plot;
            host_.Tell(kPointWasSelected, &plot, row, column);
            host_.Repaint();
            break;
    }
}

void Chart3DSelection::SelectIn(const YUpBox& box) {
    const Projection projection = chart_.Seen();
    for (const auto& plot : chart_.plots) {
        if (!CanPick(*plot)) continue;
        AnyPoint(*plot, [&](int row, int column) {
            const bool isInside = IsInBox(projection.Project(plot->At(row, column)).at, box);
            plot->selectPoint(row, column, isInside ? 1 : 0, 0);
            if (isInside) chart_.lastSelected = plot.get();
            return false;
        });
    }
}

bool Chart3DSelection::Drag(int pixels, ChartRange limits) {
    const float wanted = ShiftOf(pixels, SpanOf(chart_.space.ranges[kVerticalAxis]), chart_.space.boxSize);
    const std::uint32_t changes = chart_.plotChanges;
    bool isAny = false;
    for (std::size_t i = 0; i < chart_.plots.size() && chart_.plotChanges == changes; ++i) {
        QZChart3DPlot& plot = *chart_.plots[i];
        if (!plot.Is(kPlotDragHeight)) continue;
        isAny = true;
        float shift = wanted;
        for (const Point3D& point : plot.Points()) {
            if (IsSelected(point)) shift = ShiftWithin(point.z, shift, limits);
        }
        Move(i, shift);
    }
    return isAny;
}

// The parent, told of one point, may take the plot away or give it another grid.
void Chart3DSelection::Move(std::size_t index, float shift) {
    const std::uint32_t changes = chart_.plotChanges;
    for (std::size_t i = 0; i < chart_.plots[index]->Points().size(); ++i) {
        QZChart3DPlot& plot = *chart_.plots[index];
        const auto columns = static_cast<std::size_t>(plot.Columns());
        const int row = static_cast<int>(i / columns), column = static_cast<int>(i % columns);
        Point3D& point = plot.At(row, column);
        if (!IsSelected(point)) continue;
        point.z += shift;
        host_.Tell(kPointWasMoved, &plot, row, column);
        if (chart_.plotChanges != changes) return;
    }
}

}  // namespace corvex
