#include "controls/chart2d/QZChart2DSeries.h"

#include <algorithm>
#include <new>
#include <utility>

#include "controls/chart/BoundedText.h"

namespace corvex {

namespace {

int CountOf(const Point2D& point) {
    return IsSelected(point) ? 1 : 0;
}

}  // namespace

void QZChart2DSeries::reset() {
    look_ = {};
    name_.clear();
}

void QZChart2DSeries::setName(const char* text) {
    if (text != nullptr) name_ = BoundedText(text, kNameLength);
}

std::uint32_t QZChart2DSeries::getName(char* buffer, std::uint32_t capacity) const {
    return CopyText(name_, buffer, capacity);
}

void QZChart2DSeries::setFlags(std::uint32_t bits, int redraw) {
    look_.flags = bits == 0 ? 0 : look_.flags | bits;
    PaintIf(redraw);
}

void QZChart2DSeries::clearFlags(std::uint32_t bits, int redraw) {
    look_.flags &= ~bits;
    PaintIf(redraw);
}

std::uint32_t QZChart2DSeries::Look::*QZChart2DSeries::ColourOf(std::uint32_t index) {
    switch (index) {
        case kSeriesSelectedColour:
            return &Look::selected;
        case kSeriesPointColour:
            return &Look::point;
        case kSeriesLineColour:
            return &Look::line;
        default:
            return nullptr;
    }
}

int QZChart2DSeries::setColor(std::uint32_t index, std::uint32_t colour) {
    if (ColourOf(index) == nullptr) return 0;
    look_.*ColourOf(index) = colour;
    return 1;
}

std::int32_t QZChart2DSeries::getColor(std::uint32_t index) const {
    return ColourOf(index) == nullptr ? -1 : static_cast<std::int32_t>(look_.*ColourOf(index));
}

// Here and below the owner comes last: what it tells the parent may have the parent delete this series.
void QZChart2DSeries::clear() {
    points_.clear();
    selectedCount_ = 0;
    PaintIf(1);
    owner_.OnPointsCleared();
}

void QZChart2DSeries::addPoint(const Point2D& point) {
    Insert(points_.size(), point);
}

int QZChart2DSeries::insertPoint(const Point2D& point, std::uint32_t index) {
    return index < points_.size() ? Insert(index, point) : 0;
}

int QZChart2DSeries::Insert(std::size_t index, const Point2D& point) try {
    const Point2D now = point;
    points_.insert(points_.begin() + static_cast<std::ptrdiff_t>(index), now);
    Count(CountOf(now));
    owner_.OnPointChanged(nullptr, &now);
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

int QZChart2DSeries::deletePoint(std::uint32_t index) {
    if (index >= points_.size()) return 0;
    const Point2D before = points_[index];
    points_.erase(points_.begin() + static_cast<std::ptrdiff_t>(index));
    Count(-CountOf(before));
    owner_.OnPointChanged(&before, nullptr);
    return 1;
}

int QZChart2DSeries::setPoint(std::uint32_t index, const Point2D& point, int redraw) {
    if (index >= points_.size()) return 0;
    const Point2D now = point, before = std::exchange(points_[index], now);
    Count(CountOf(now) - CountOf(before));
    PaintIf(redraw);
    owner_.OnPointChanged(&before, &now);
    return 1;
}

int QZChart2DSeries::getPoint(std::uint32_t index, Point2D* point) const {
    if (point == nullptr || index >= points_.size()) return 0;
    *point = points_[index];
    return 1;
}

int QZChart2DSeries::selectPoint(std::uint32_t index, int selected, int redraw) {
    if (index >= points_.size()) return 0;
    std::uint32_t& flags = points_[index].flags;
    flags = selected != 0 ? flags | kPointSelected : flags & ~kPointSelected;
    Count(selected != 0 ? 1 : -1);
    PaintIf(redraw);
    return 1;
}

void QZChart2DSeries::clearSelection(int redraw) {
    SelectBy([](const Point2D&) { return false; });
    PaintIf(redraw);
}

std::size_t QZChart2DSeries::CountSelected() const {
    return static_cast<std::size_t>(std::ranges::count_if(points_, [](const Point2D& one) { return IsSelected(one); }));
}

void QZChart2DSeries::Count(int more) {
    selectedCount_ = std::max(0, selectedCount_ + more);
}

void QZChart2DSeries::PaintIf(int redraw) {
    if (redraw != 0) owner_.PaintSoon();
}

}  // namespace corvex
