// Draws a 3-D chart.
#pragma once

#include "controls/chart3d/Chart3DModel.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

// Made once for a window.
struct Chart3DFonts {
    Chart3DFonts();
    OwnedFont tick, selection, title, subtitle, floorTitle, verticalTitle;
};

// The whole client from 0, 0, as large as the model has it, but for the rubber band. The ramps of plots get their
// range. The context is afterwards as it was.
void PaintChart3D(HDC dc, const Chart3DModel& chart, const Chart3DFonts& fonts, IChart3DLabels& labels);
// The rubber band, which the second time takes away what the first has drawn.
void PaintChart3DBand(HDC dc, const Chart3DModel& chart);

}  // namespace corvex
