// Messages that carry a pointer, asked of another process.
#pragma once

#include <string>

#include "platform/WindowsApi.h"

namespace corvex::test {

// For messages that fill a rectangle. Empty on failure.
RECT AskRectangle(HWND window, UINT message, WPARAM wParam);
// For those that read in it first what is asked for.
RECT AskRectangle(HWND window, UINT message, WPARAM wParam, const RECT& asked);

// The title of one tab; empty on failure.
std::string TabTitle(HWND tabControl, int index);

// For messages of the gauges that fill a buffer in wParam of the size in lParam. Empty on failure.
std::string AskText(HWND window, UINT message);

// What a cell of a list view says, whoever it has to ask for it. Empty on failure.
std::string CellText(HWND list, int row, int column);

}  // namespace corvex::test
