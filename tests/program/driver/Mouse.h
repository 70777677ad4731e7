// A real mouse, as far as a program can tell.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex::test {

// Presses the left button at one point, moves to the other and lets go. Screen coordinates. The program has not seen
// it yet when this returns.
bool DragMouse(POINT from, POINT to);
// Presses the right button there and lets go.
bool ClickRight(POINT place);

}  // namespace corvex::test
