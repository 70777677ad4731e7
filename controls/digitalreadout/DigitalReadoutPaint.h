#pragma once

#include "controls/digitalreadout/DigitalReadoutModel.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Fills the whole client area, which begins at 0, 0 of the device, and leaves the context as it was.
void PaintDigitalReadout(HDC dc, const RECT& client, const DigitalReadoutModel& model);

}  // namespace corvex
