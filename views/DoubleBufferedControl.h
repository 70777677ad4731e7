// Painting without flicker for a system control that erases before it draws.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

// From now on the control draws ground and content on a bitmap, and that goes to the screen in one step; what it draws
// and what it notifies its parent of stay the same. For controls that answer WM_PRINTCLIENT. Once for each control, on
// its thread.
void MakeDoubleBuffered(HWND control);

}  // namespace corvex
