// All pages of the definition at once.
#pragma once

#include "session/SessionState.h"

namespace corvex {

// Adds them to session.tabSheet, in the order of their tabs. Once. Main thread, like the next.
void CreatePages(SessionState& session);
// After every change of the definition, before a message is waited for.
void RefreshPages(SessionState& session);

}  // namespace corvex
