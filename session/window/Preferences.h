// The window in which the user chooses the serial port.
#pragma once

#include "platform/WindowsApi.h"
#include "session/SessionState.h"

namespace corvex {

// Opens it over session.mainWindow, which is disabled until it closes, and keeps it in session.preferencesWindow.
// Brings it to the front when it is open already. Main thread, like the next.
void OpenPreferences(SessionState& session);

// The main window's WM_NOTIFY from session.preferencesWindow; 0 for one from anywhere else. OK takes the port over for
// the next scan, and lets the window go as Cancel does.
LRESULT OnPreferencesNotify(SessionState& session, const NMHDR& notification);

}  // namespace corvex
