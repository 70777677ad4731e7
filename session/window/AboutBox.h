// The box that tells the version of the program.
#pragma once

#include "session/SessionState.h"

namespace corvex {

// Shows it over session.mainWindow and returns when it has been closed. Main thread.
void ShowAboutBox(const SessionState& session);

}  // namespace corvex
