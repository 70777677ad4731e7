// One axis of a 2-D chart: its line with arrowheads, and its ticks across the plot.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "controls/chart2d/Chart2DModel.h"

namespace corvex {

struct AxisTick {
    YUpPoint gridFrom, gridTo;  // across the plot
    YUpPoint markFrom, markTo;  // across the axis's line, or outward from its edge of the plot when it has none
    // Beside the axis; none that would lie on the one before, or without a text.
    struct Label {
        std::string text;
        YUpPoint at;  // the upper edge level with it: for X, where it reads downward, it begins there, else it ends
    };
    std::optional<Label> label;
};

struct AxisLine {
    YUpPoint from, to;
    std::vector<std::array<YUpPoint, 3>> heads;  // tip first; at the ends that lie beyond zero
};

struct AxisFigure {
    std::vector<AxisTick> ticks;
    std::optional<AxisLine> line;
};

// `measure` tells of the labels' font, read along its line.
AxisFigure AxisFigureOf(const Chart2DModel& chart, Chart2DAxis axis, const ITickTextMeasure& measure);

}  // namespace corvex
