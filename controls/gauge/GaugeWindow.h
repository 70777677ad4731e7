// What the windows of all gauges do alike. On the window's own thread.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

// At once, with erase, by InvalidateRect and UpdateWindow.
void RepaintGauge(HWND gauge);

// The answer to WM_CONTEXTMENU: sends the parent WM_COMMAND with the notification code, the gauge's control id and the
// screen coordinates that came with the message. The gauge may be gone afterwards. Returns 0.
LRESULT ForwardContextMenu(HWND gauge, UINT notificationCode, LPARAM screenPlace);

}  // namespace corvex
