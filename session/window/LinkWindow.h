// The small window that tells what the line does: what was seen, what that means, what to try first.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

class Desktop;

// Beside the main window, which stays as it is; one that is open comes to the front. It follows the scan until it is
// closed, but holds still while somebody marks text in it. Main thread, like the next.
void OpenLinkWindow(Desktop& desktop);

// Shows what is true now, if it is open.
void RefreshLinkWindow(Desktop& desktop);

}  // namespace corvex
