// Listens in on a page: when it goes, wherever it stands, and when a context menu is asked for on it.
#pragma once

#include "platform/PrivateMessages.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Puts a procedure in front of the page's own, which goes on getting every message. It hands WM_CONTEXTMENU to the
// sheet's parent as TSM_PAGECONTEXTMENU first, and tells the sheet of its end by kMessagePageGone. A dialog's procedure
// is untouched. False for a window that is gone.
bool SubclassPage(HWND page, HWND sheet);
// Gives the page its own procedure back. For a window that is no page nothing happens.
void UnsubclassPage(HWND page);
bool IsSubclassedPage(HWND window);

}  // namespace corvex
