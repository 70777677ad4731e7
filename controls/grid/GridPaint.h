// Draws a grid.
#pragma once

#include "controls/grid/GridFonts.h"

namespace corvex {

// The client from 0, 0, as large as the model has it and as far as FindVisible has found it, but nothing that lies
// outside of `due`. The context is afterwards as it was.
void PaintGrid(HDC dc, const GridModel& grid, const GridFonts& fonts, const RECT& due);

}  // namespace corvex
