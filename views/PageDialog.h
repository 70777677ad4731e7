// What the dialog procedures of the pages have in common.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

// A window's rectangle in the client coordinates of its parent.
RECT RectInParent(HWND child);

// Gives a message's result from a dialog procedure, whose own return value tells only that the message was handled.
INT_PTR DialogResult(HWND page, LONG_PTR result);

// Answers WM_PAINT of a page that leaves WM_ERASEBKGND alone: fills what its controls leave free, once, so that
// nothing flickers under them.
void PaintPageGround(HWND page);

}  // namespace corvex
