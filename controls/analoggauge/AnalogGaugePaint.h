#pragma once

#include "controls/analoggauge/AnalogGaugeModel.h"
#include "controls/analoggauge/DialCurves.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Fills the whole client area, which begins at 0, 0 of the device, and leaves the context as it was.
void PaintAnalogGauge(HDC dc, const RECT& client, const AnalogGaugeModel& model);
// The same picture, with the long curves drawn by another.
void PaintAnalogGauge(HDC dc, const RECT& client, const AnalogGaugeModel& model, DialCurves& curves);

}  // namespace corvex
