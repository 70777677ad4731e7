// The log's toolbar and its slider, in a dialog on the tool band.
#pragma once

#include <cstdint>

#include "platform/WindowsApi.h"

namespace corvex {

class Desktop;
class SessionState;

class LogBar {
public:
    // Makes the dialog with both and stores the handles in the session. `images` outlives it. Main thread.
    static void Create(Desktop& desktop, HWND rebar, void* images);
    // Enables what the state of log and connection allows. Main thread.
    static void RefreshButtons(SessionState& session);
    // In records. Left alone while the user has the slider in his hand. Main thread.
    static void SetPosition(SessionState& session, std::uint32_t index);
    // From 0 to `last`. Main thread.
    static void SetRange(SessionState& session, std::uint32_t last);
};

}  // namespace corvex
