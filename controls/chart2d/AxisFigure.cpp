#include "controls/chart2d/AxisFigure.h"

#include "controls/chart/LabelThinning.h"

namespace corvex {

namespace {

constexpr int kMarkLength = 6, kLabelGap2D = 6;
constexpr int kHeadLength = 10, kHeadHalfWidth = 4;

// A place told along one axis and across it.
YUpPoint PlaceAt(Chart2DAxis axis, int along, int across) {
    return axis == kChart2DX ? YUpPoint{along, across} : YUpPoint{across, along};
}

// Outside of the level, and in the middle of its tick.
YUpBox LabelBoxOf(Chart2DAxis axis, int along, int level, YUpSize size) {
    if (axis == kChart2DY) return LabelBox({level - kLabelGap2D, along}, TextSide::kLeft, size);
    const int left = along - size.height / 2, top = level - kLabelGap2D;
    return {{left, top - size.width}, {left + size.height, top}};
}

std::array<YUpPoint, 3> HeadAt(Chart2DAxis axis, int end, int outward, int level) {
    return {PlaceAt(axis, end + outward * kHeadLength, level), PlaceAt(axis, end, level - kHeadHalfWidth),
            PlaceAt(axis, end, level + kHeadHalfWidth)};
}

AxisLine LineOf(const Chart2DModel& chart, const Chart2DScale& scale, Chart2DAxis axis, int level) {
    AxisLine line{PlaceAt(axis, scale.Start(), level), PlaceAt(axis, scale.End(), level), {}};
    if (chart.ranges[axis].minimum < 0.0F) line.heads.push_back(HeadAt(axis, scale.Start(), -1, level));
    if (chart.ranges[axis].maximum > 0.0F) line.heads.push_back(HeadAt(axis, scale.End(), 1, level));
    return line;
}

}  // namespace

AxisFigure AxisFigureOf(const Chart2DModel& chart, Chart2DAxis axis, const ITickTextMeasure& measure) {
    const Chart2DSpace space = chart.Seen();
    const Chart2DScale &along = space.Along(axis), &across = space.Along(OtherAxis(axis));
    const int level = space.LevelOf(axis);
    AxisFigure figure;
    const int markFrom = space.HasAxis(axis) ? level + kMarkLength / 2 : level;
    LabelThinning labels;
    for (const TickEntry& tick : chart.ticks[axis].All()) {
        const int at = along.ToPixel(tick.value);
        figure.ticks.push_back({PlaceAt(axis, at, across.Start()), PlaceAt(axis, at, across.End()),
                                PlaceAt(axis, at, markFrom), PlaceAt(axis, at, markFrom - kMarkLength), std::nullopt});
        if (tick.label.empty()) continue;
        const YUpBox box = LabelBoxOf(axis, at, level, measure.Measure(tick.label));
        if (labels.Takes(box)) figure.ticks.back().label = AxisTick::Label{tick.label, box.opposite};
    }
    if (space.HasAxis(axis)) figure.line = LineOf(chart, along, axis, level);
    return figure;
}

}  // namespace corvex
