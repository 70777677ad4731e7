// Carries the status texts from whoever has news to the panels.
#pragma once

#include "controls/window/Mailbox.h"
#include "session/window/StatusPanels.h"

namespace corvex {

// A worker leaves a picture of the moment here and goes on: every poll brings one, and waiting until it is drawn would
// leave the serial line idle meanwhile. Only the newest picture is shown. It must outlive the session's workers.
class StatusMailbox {
public:
    explicit StatusMailbox(SessionState& session);
    StatusMailbox(const StatusMailbox&) = delete;
    StatusMailbox& operator=(const StatusMailbox&) = delete;

    // Takes the state as it is now. On the main thread it is shown at once, else when kMessageRefreshStatus comes
    // there.
    void Refresh();
    // Shows the newest picture. Main thread.
    void Show();

private:
    SessionState& session_;
    Mailbox<StatusPicture> news_;
};

}  // namespace corvex
