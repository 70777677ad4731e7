// Where the main window stood.
#pragma once

#include "platform/WindowsApi.h"
#include "session/AppSettings.h"

namespace corvex {

// The saved rectangle, when somebody could see and grasp a window there; else that of the defaults. A screen may have
// gone since, and a settings file may hold anything.
RECT VisiblePlace(const AppSettings& settings);

// A rectangle that the system tells in its workspace's coordinates, which begin at the corner of what a monitor's task
// bar leaves, in those of the screen.
RECT ScreenPlace(RECT place, const RECT& monitor, const RECT& workArea);

// The window's present rectangle into the settings; of a minimised window the one that it would come back to.
void KeepPlace(HWND window, AppSettings* settings);

}  // namespace corvex
