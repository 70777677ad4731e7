#pragma once

#include "controls/textprogress/TextProgressModel.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Fills the whole area, which begins at 0, 0 of the device: a text in two tones is clipped in its units. The font is
// the one that is selected.
void PaintTextProgress(HDC dc, const RECT& area, const TextProgressModel& model);

}  // namespace corvex
