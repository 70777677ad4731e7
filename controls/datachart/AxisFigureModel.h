// Where line, ticks and texts of an axis lie.
#pragma once

#include "controls/datachart/DataChartModel.h"

namespace corvex {

// For an axis that is laid out. `chart` is what its formatter is told of the chart.
AxisFigure FigureOf(const DataChartAxis& axis, const IChartTextMeasure& measure, void* chart);

}  // namespace corvex
