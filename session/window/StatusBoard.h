// Carries the status texts from whoever has news to the panels.
#pragma once

#include "session/window/NewestOnly.h"
#include "session/window/StatusPanels.h"

namespace corvex {

// A worker leaves a picture of the moment here and goes on: every poll brings one, and waiting until it is drawn would
// leave the serial line idle meanwhile. Only the newest picture is shown. It must outlive the session's workers.
class StatusBoard {
public:
    explicit StatusBoard(SessionState& session);
    StatusBoard(const StatusBoard&) = delete;
    StatusBoard& operator=(const StatusBoard&) = delete;

    // Takes the state as it is now. On the main thread it is shown at once, else when kMessageRefreshStatus comes
    // there.
    void Refresh();
    // Shows the newest picture. Main thread.
    void Show();

private:
    SessionState& session_;
    NewestOnly<StatusPicture> news_;
};

}  // namespace corvex
