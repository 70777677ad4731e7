// Works the popup menu of a program as a person does.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex::test {

// With the right button of the mouse, once the window is the one to be seen there. Waits with a long deadline and
// throws std::runtime_error when the menu does not come.
void OpenPopup(HWND window);

// Presses the keys that lead to a row of a submenu, counted from 0, and waits until the menu has gone. False when the
// main window does not come to the front or the menu stays.
bool ChooseRow(HWND mainWindow, int submenu, int row);
// The same for a row of the menu itself.
bool ChooseRow(HWND mainWindow, int row);

}  // namespace corvex::test
