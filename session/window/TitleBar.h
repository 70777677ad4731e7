#pragma once

namespace corvex {

class SessionState;

// Writes the main window's title as the session's settings and the playback speed have it now. Main thread.
void RefreshTitle(SessionState& session);

}  // namespace corvex
