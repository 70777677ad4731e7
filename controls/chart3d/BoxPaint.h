// Draws the box of a 3-D chart: the faces behind the data, ticks, and the titles of the axes.
#pragma once

#include "controls/chart3d/Chart3DPaint.h"

namespace corvex {

// In the chart's y-up space. The state of the context that drawing needs is changed, and what was selected put back.
void PaintBox(HDC dc, const Chart3DModel& chart, const Projection& projection, const Chart3DFonts& fonts);

}  // namespace corvex
