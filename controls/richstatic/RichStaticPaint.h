#pragma once

#include "controls/richstatic/RichStaticModel.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Fills the whole area; the font is the one that is selected.
void PaintRichStatic(HDC dc, const RECT& area, const RichStaticModel& model);

}  // namespace corvex
