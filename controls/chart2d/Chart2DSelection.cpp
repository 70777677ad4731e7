#include "controls/chart2d/Chart2DSelection.h"

#include <algorithm>

#include "controls/chart/PointDrag.h"
#include "controls/chart/PointPick.h"

namespace corvex {

namespace {

constexpr std::uint32_t kDragFlags[] = {kSeriesDragX, kSeriesDragY};

}  // namespace

void Chart2DSelection::Clear() {
    for (const auto& series : chart_.series)
        series->clearSelection(0);
}

std::optional<Chart2DSelection::Place> Chart2DSelection::Find(YUpPoint pointer) const {
    const Chart2DSpace space = chart_.Seen();
    if (!space.HasPlot()) return std::nullopt;
    for (std::size_t i = 0; i < chart_.series.size(); ++i) {
        const QZChart2DSeries& series = *chart_.series[i];
        if (!CanPick(series)) continue;
        const auto isMeant = [&](const Point2D& point) {
            return IsNear(space.PlaceOf(point), pointer, series.getPointRadius());
        };
        const auto found = std::ranges::find_if(series.Points(), isMeant);
        if (found != series.Points().end()) return Place{i, static_cast<std::size_t>(found - series.Points().begin())};
    }
    return std::nullopt;
}

void Chart2DSelection::Click(Place place, bool control) {
    QZChart2DSeries& series = *chart_.series[place.series];
    const auto index = static_cast<std::uint32_t>(place.index);
    std::size_t selected = 0;
    for (const auto& one : chart_.series)
        selected += one->CountSelected();
    chart_.picked = {&series, place.index};
    switch (ClickOn(IsSelected(series.At(index)), static_cast<int>(std::min<std::size_t>(selected, 2)), control)) {
        case PointClick::kKeepGroup:
            break;
        case PointClick::kDeselect:
            series.selectPoint(index, 0, 0);
            host_.Repaint();
            break;
        case PointClick::kSelect:
            if (!control) Clear();
            if (series.Is(kSeriesPick)) series.clearSelection(0);
            if (IsSelected(series.At(index))) break;
            series.selectPoint(index, 1, 0);
            host_.Tell(kChart2DPointSelected, &series, static_cast<int>(index));
            host_.Repaint();
            break;
    }
}

void Chart2DSelection::SelectIn(const YUpBox& box) {
    const Chart2DSpace space = chart_.Seen();
    for (const auto& series : chart_.series) {
        if (!CanPick(*series)) continue;
        series->SelectBy([&](const Point2D& point) { return space.HasPlot() && IsInBox(space.PlaceOf(point), box); });
    }
}

bool Chart2DSelection::Drag(int across, int up) {
    const Chart2DSpace space = chart_.Seen();
    Shift wanted{};
    for (const Chart2DAxis axis : kChart2DAxes) {
        const ChartRange& range = chart_.ranges[axis];
        wanted[axis] = ShiftOf(axis == kChart2DX ? across : up, range.maximum - range.minimum,
                               static_cast<float>(space.Along(axis).Length()));
    }
    const Shift shift = Within(wanted);
    const std::uint32_t changes = chart_.seriesChanges;
    bool isAny = false;
    for (std::size_t i = 0; i < chart_.series.size() && chart_.seriesChanges == changes; ++i) {
        if (!chart_.series[i]->Is(kSeriesAnyDrag)) continue;
        isAny = true;
        Move(i, shift);
    }
    return isAny;
}

Chart2DSelection::Shift Chart2DSelection::Within(Shift shift) const {
    for (const auto& series : chart_.series) {
        for (const Chart2DAxis axis : kChart2DAxes) {
            if (!series->Is(kDragFlags[axis])) continue;
            for (const Point2D& point : series->Points()) {
                if (IsSelected(point))
                    shift[axis] = ShiftWithin(AlongAxis(point, axis), shift[axis], chart_.limits[axis]);
            }
        }
    }
    return shift;
}

// The parent, told of one point, may take the series away or any of its points.
void Chart2DSelection::Move(std::size_t index, const Shift& shift) {
    const std::uint32_t changes = chart_.seriesChanges;
    for (std::size_t i = 0; i < chart_.series[index]->Points().size(); ++i) {
        QZChart2DSeries& series = *chart_.series[index];
        Point2D& point = series.At(i);
        if (!IsSelected(point)) continue;
        for (const Chart2DAxis axis : kChart2DAxes) {
            if (series.Is(kDragFlags[axis])) AlongAxis(point, axis) += shift[axis];
        }
        host_.Tell(kChart2DPointMoved, &series, static_cast<int>(i));
        if (chart_.seriesChanges != changes) return;
    }
}

}  // namespace corvex
