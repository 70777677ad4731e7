// Turning windows into pages of another window and back, and telling that window's parent. On the windows' thread.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

// Hides the window and makes it a child of `parent`, with `extraStyle` added to the style of a page. A page always
// tells its parent when it is destroyed. False for a window that is gone, belongs to another thread or holds the parent
// itself; such a one stays as it was.
bool BecomePage(HWND window, HWND parent, DWORD extraStyle = 0);

// Hides the page and makes it a pop-up window without parent or owner.
void LeaveParent(HWND page);

// Whoever hears of a control's events: a child's parent, a frame's owner. May be null.
HWND ParentToTell(HWND control);

// Sends WM_NOTIFY with an NMHDR. The parent's result, 0 without a parent.
LRESULT TellParent(HWND parent, HWND control, UINT code);

}  // namespace corvex
