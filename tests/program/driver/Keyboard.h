// Real keys, as they come from the keyboard.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex::test {

enum KeyModifier : unsigned { kPlain = 0, kCtrl = 1, kAlt = 2, kShift = 4 };

// Brings the window to the foreground and presses the key there. False when the window can't be brought there. The
// program has not seen the key yet when this returns.
bool PressKey(HWND window, WORD virtualKey, unsigned modifiers = kPlain);

}  // namespace corvex::test
