// Pictures of windows, for people to look at.
#pragma once

#include <string>

#include "platform/WindowsApi.h"

namespace corvex::test {

// Writes the window with all in it as NAME.bmp into the folder that the environment variable CORVEX_PICTURES names;
// without one it only has the window painted. The window must be visible and belong to this thread.
void SavePicture(HWND window, const std::string& name);

}  // namespace corvex::test
