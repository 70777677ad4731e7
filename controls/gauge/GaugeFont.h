// The fonts of gauges and charts.
#pragma once

#include "controls/window/GdiObjects.h"

namespace corvex {

// Arial in a height of logical units, which counts the room for accents and descenders. Texts run at that angle, in
// tenths of a degree counterclockwise.
OwnedFont MakeGaugeFont(int height, int weight = FW_SEMIBOLD, int escapement = 0);

}  // namespace corvex
