// Messages of the common controls that carry a pointer, asked of another process.
#pragma once

#include <string>

#include "platform/WindowsApi.h"

namespace corvex::test {

// For messages that fill a rectangle. Empty on failure.
RECT AskRectangle(HWND window, UINT message, WPARAM wParam);

// The title of one tab; empty on failure.
std::string TabTitle(HWND tabControl, int index);

}  // namespace corvex::test
