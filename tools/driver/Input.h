// Real keys and a real mouse, as far as a program can tell. The program has not seen yet what was done when these
// return.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex::test {

enum KeyModifier : unsigned { kPlain = 0, kCtrl = 1, kAlt = 2, kShift = 4 };

// Brings the window to the foreground and presses the key there. False when the window can't be brought there.
bool PressKey(HWND window, WORD virtualKey, unsigned modifiers = kPlain);

// Presses the left button at one point of the screen, moves to the other and lets go.
bool DragMouse(POINT from, POINT to);
// Presses the right button there and lets go.
bool ClickRight(POINT place);

}  // namespace corvex::test
