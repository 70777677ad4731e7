// Draws one surface of a 3-D chart: its quads, and its points on them.
#pragma once

#include "controls/chart3d/Chart3DModel.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

// In the chart's y-up space. The plot's ramp gets the range that this paint needs. The state of the context that
// drawing needs is changed, and what was selected put back.
void PaintSurface(HDC dc, const Chart3DModel& chart, QZChart3DPlot& plot, const Projection& projection);

}  // namespace corvex
