#pragma once

#include "controls/statusgauge/StatusGaugeModel.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Fills the whole client area, which begins at 0, 0 of the device, and leaves the context as it was. The tile is drawn
// in the pen and brush that are selected: of a new context, white with a black frame.
void PaintStatusGauge(HDC dc, const RECT& client, const StatusGaugeModel& model);

}  // namespace corvex
