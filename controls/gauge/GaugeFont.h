// The fonts of the gauges.
#pragma once

#include "controls/window/GdiObjects.h"

namespace corvex {

// Semi-bold Arial in a height of logical units, which counts the room for accents and descenders.
OwnedFont MakeGaugeFont(int height);

}  // namespace corvex
