// The definition editor, a library of its own that the program will not start without.
#pragma once

#include "session/window/EditorEntry.h"

namespace corvex {

class SessionState;

// Loads "ADXEditor.dll" and finds its entry, both kept in the session. False when the program has to end; the user has
// been told why by then.
bool LoadEditor(SessionState& session);
EditorEntry EditorOf(const SessionState& session);

}  // namespace corvex
