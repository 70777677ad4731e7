// The dialog on a definition's header.
#pragma once

#include "apps/editor/EditorSession.h"
#include "platform/WindowsApi.h"

namespace corvex {

// One page of the editor, modal over `owner`. The session is open. Returns when the user has saved or given up: ask the
// session which. On the thread of its owner.
void ShowHeaderDialog(EditorSession& session, HWND owner);

}  // namespace corvex
