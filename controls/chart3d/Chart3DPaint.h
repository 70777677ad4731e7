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

}  // namespace corvex
