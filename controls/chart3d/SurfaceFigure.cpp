#include "controls/chart3d/SurfaceFigure.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace corvex {

SurfaceOrder OrderOf(int firstFirst, int lastLast, int lastFirst, int firstLast) {
    const int far = std::max({firstFirst, lastLast, lastFirst, firstLast});
    // Of corners equally far, the last of both counts first.
    if (far == lastLast) return {true, true};
    return {far == lastFirst, far == firstLast};
}

SurfaceFigure::SurfaceFigure(const QZChart3DPlot& plot, const Projection& projection)
    : plot_(plot), projection_(projection) {
    if (plot.Points().empty()) return;
    places_.reserve(plot.Points().size());
    for (const Point3D& point : plot.Points())
        places_.push_back(projection.Project(point).at);
    // Their heights count too: of a grid whose corners differ much in height, another one may be the far corner.
    const auto depth = [&](int row, int column) { return projection.Project(plot.At(row, column)).depth; };
    const int lastRow = plot.Rows() - 1, lastColumn = plot.Columns() - 1;
    order_ = OrderOf(depth(0, 0), depth(lastRow, lastColumn), depth(lastRow, 0), depth(0, lastColumn));
}

SurfaceQuad SurfaceFigure::QuadAt(int row, int column) const {
    const std::size_t here = IndexOf(row, column), next = IndexOf(row + 1, column);
    const auto height = [this](std::size_t index) {
        return static_cast<double>(projection_.HeightOf(plot_.Points()[index].z));
    };
    // In doubles the sum of no four floats overflows.
    const double mean = (height(here) + height(next) + height(here + 1) + height(next + 1)) / 4.0;
    return {{places_[here], places_[next], places_[next + 1], places_[here + 1]}, static_cast<float>(mean)};
}

std::optional<ChartRange> RampRangeOf(const Chart3DModel& chart, const QZChart3DPlot& plot) {
    if (plot.getType() == kRampOfChart) {
        const ChartRange& range = chart.space.ranges[kVerticalAxis];
        if (!std::isfinite(range.minimum) || !std::isfinite(range.maximum)) return std::nullopt;
        return range;
    }
    std::optional<ChartRange> range;
    if (plot.getType() != kRampOfPlot) return range;
    for (const Point3D& point : plot.Points()) {
        if (!std::isfinite(point.z)) continue;
        if (!range) range = {point.z, point.z};
        if (point.z < range->minimum) range->minimum = point.z;
        if (point.z > range->maximum) range->maximum = point.z;
    }
    return range;
}

std::vector<QZChart3DPlot*> DrawnPlots(const Chart3DModel& chart) {
    std::vector<QZChart3DPlot*> drawn;
    for (const auto& plot : chart.plots) {
        if (plot->Is(kPlotHidden)) continue;
        drawn.push_back(plot.get());
        // A second filled surface would hide the first wherever it lies.
        if (!chart.Has(kChart3DWireframe)) break;
    }
    return drawn;
}

std::optional<std::string> SelectionText(const Chart3DModel& chart, IChart3DLabels& labels) {
    int count = 0;
    for (const auto& plot : chart.plots)
        count += plot->getSelectedCount();
    if (!chart.Has(kChart3DSelectionLabel) || count <= 0) return std::nullopt;

    Point3D point;
    QZChart3DPlot* const last = chart.lastSelected;
    // The grid may have shrunk since.
    if (last && last->getPoint(last->LastRow(), last->LastColumn(), &point)) {
        std::optional<std::string> text =
            labels.LabelOf(kSelectionLabel, point, last, last->LastRow(), last->LastColumn());
        if (text) return text;
    }
    char text[40];
    std::snprintf(text, sizeof text, "%i %s Selected", count, count == 1 ? "Point" : "Points");
    return text;
}

}  // namespace corvex
