// What the paints of label and progress bar share.
#pragma once

#include <cstdint>

#include "platform/WindowsApi.h"

namespace corvex {

// The system's button colour for kNoColour.
COLORREF GroundColour(std::uint32_t backColour);
void FillArea(HDC dc, const RECT& area, COLORREF colour);
// One transparent line in the middle of the area, both ways, in the font that is selected.
void DrawCentred(HDC dc, const RECT& area, const char* text, COLORREF colour);

}  // namespace corvex
