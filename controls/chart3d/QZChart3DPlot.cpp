#include "controls/chart3d/QZChart3DPlot.h"

#include <algorithm>
#include <new>
#include <utility>

#include "controls/chart/BoundedText.h"

namespace corvex {

namespace {

int CountSelected(const std::vector<Point3D>& points) {
    return static_cast<int>(std::ranges::count_if(points, IsSelected));
}

}  // namespace

void QZChart3DPlot::reset() {
    flags_ = kPlotDefaultFlags;
    Deselect();
    radius_ = kDefaultRadius;
    type_ = kRampOfChart;
    lineColour_ = kDefaultLineColour;
    selectedColour_ = kDefaultSelectedColour;
    faceColour_ = kDefaultFaceColour;
    lineWidth_ = 1;
}

void QZChart3DPlot::setName(const char* text) {
    if (text != nullptr) name_ = BoundedText(text, kNameLength);
}

std::uint32_t QZChart3DPlot::getName(char* buffer, std::uint32_t capacity) const {
    return CopyText(name_, buffer, capacity);
}

void QZChart3DPlot::setFlags(std::uint32_t bits, int redraw) {
    flags_ = bits == 0 ? 0 : flags_ | bits;
    if (bits == 0) Deselect();
    PaintIf(redraw);
}

void QZChart3DPlot::clearFlags(std::uint32_t bits, int redraw) {
    flags_ &= ~bits;
    if ((bits & kPlotAnyPick) != 0) Deselect();
    PaintIf(redraw);
}

std::uint32_t QZChart3DPlot::*QZChart3DPlot::ColourOf(std::uint32_t index) {
    switch (index) {
        case kPlotStoredColour:
            return &QZChart3DPlot::storedColour_;
        case kSelectedPointColour:
            return &QZChart3DPlot::selectedColour_;
        case kPointColour:
            return &QZChart3DPlot::pointColour_;
        case kPlotLineColour:
            return &QZChart3DPlot::lineColour_;
        case kFaceColour:
            return &QZChart3DPlot::faceColour_;
        default:
            return nullptr;
    }
}

int QZChart3DPlot::setColor(std::uint32_t index, std::uint32_t colour) {
    if (ColourOf(index) == nullptr) return 0;
    this->*ColourOf(index) = colour;
    return 1;
}

std::int32_t QZChart3DPlot::getColor(std::uint32_t index) const {
    return ColourOf(index) == nullptr ? -1 : static_cast<std::int32_t>(this->*ColourOf(index));
}

void QZChart3DPlot::setGridSize(int rows, int columns) try {
    if (rows < 0 || columns < 0) return;
    const std::size_t height = static_cast<std::size_t>(rows), width = static_cast<std::size_t>(columns);
    if (width != 0 && height > kMaxPoints / width) return;
    std::vector<Point3D> points(height * width);
    const int keptRows = std::min(rows, rows_), keptColumns = std::min(columns, columns_);
    for (int row = 0; row < keptRows; ++row) {
        for (int column = 0; column < keptColumns; ++column)
            points[static_cast<std::size_t>(row) * width + static_cast<std::size_t>(column)] = At(row, column);
    }
    points_ = std::move(points);
    rows_ = rows;
    columns_ = columns;
    selectedCount_ = CountSelected(points_);
    if (!Contains(lastRow_, lastColumn_)) lastRow_ = lastColumn_ = 0;
    owner_.OnGridSized();
} catch (const std::bad_alloc&) {
}

void QZChart3DPlot::getGridSize(int* rows, int* columns) const {
    if (rows != nullptr) *rows = rows_;
    if (columns != nullptr) *columns = columns_;
}

// The owner comes last: what it tells the parent may have the parent delete this plot.
void QZChart3DPlot::setPoint(int row, int column, const Point3D& point, int redraw) {
    if (!Contains(row, column)) return;
    const Point3D now = point, before = std::exchange(At(row, column), now);
    selectedCount_ += static_cast<int>(IsSelected(now)) - static_cast<int>(IsSelected(before));
    PaintIf(redraw);
    owner_.OnPointSet(*this, before, now);
}

int QZChart3DPlot::getPoint(int row, int column, Point3D* point) const {
    if (point == nullptr || !Contains(row, column)) return 0;
    *point = At(row, column);
    return 1;
}

void QZChart3DPlot::clearSelection(int redraw) {
    Deselect();
    PaintIf(redraw);
}

int QZChart3DPlot::selectPoint(int row, int column, int selected, int redraw) {
    if (!Contains(row, column)) return 0;
    Point3D& point = At(row, column);
    if (IsSelected(point) != (selected != 0)) {
        point.flags ^= kPointSelected;
        selectedCount_ += selected != 0 ? 1 : -1;
    }
    if (selected != 0) SetLast(row, column);
    PaintIf(redraw);
    return redraw != 0 ? 1 : 0;
}

void QZChart3DPlot::setPoints(const Point3D* points, int redraw) {
    if (points == nullptr || points_.empty()) return;
    std::copy_n(points, points_.size(), points_.begin());
    selectedCount_ = CountSelected(points_);
    PaintIf(redraw);
    owner_.OnPointsSet();
}

void QZChart3DPlot::SetLast(int row, int column) {
    lastRow_ = row;
    lastColumn_ = column;
}

void QZChart3DPlot::Deselect() {
    if (selectedCount_ == 0) return;
    for (Point3D& point : points_)
        point.flags &= ~kPointSelected;
    selectedCount_ = 0;
}

void QZChart3DPlot::PaintIf(int redraw) {
    if (redraw != 0) owner_.PaintSoon();
}

}  // namespace corvex
