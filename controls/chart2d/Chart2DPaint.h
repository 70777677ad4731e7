// Draws a 2-D chart.
#pragma once

#include "controls/chart2d/Chart2DModel.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

// Made once for a window.
struct Chart2DFonts {
    Chart2DFonts();
    OwnedFont xTick, yTick, point, title, subtitle, xTitle, yTitle;
};

// The whole client from 0, 0, as large as the model has it, but for the rubber band. The context is afterwards as it
// was.
void PaintChart2D(HDC dc, const Chart2DModel& chart, const Chart2DFonts& fonts, IChart2DLabels& labels);

}  // namespace corvex
