// The definition editor, a library of its own that the program will not start without.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

class DebugOutput;
class SessionState;

// Ordinal 1 of the library, its only entry. `path` has 260 characters; an empty one is filled by the editor. Not 0 when
// a definition was saved there. The last argument is 0.
using EditorEntry = int(__cdecl*)(HWND owner, char* path, DebugOutput* debug, int reserved);

// Loads "ADXEditor.dll" and finds its entry, both kept in the session. False when the program has to end; the user has
// been told why by then.
bool LoadEditor(SessionState& session);
EditorEntry EditorOf(const SessionState& session);

}  // namespace corvex
