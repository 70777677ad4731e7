#include "session/window/TitleBar.h"

#include "platform/WindowsApi.h"
#include "session/SessionState.h"
#include "session/WindowTitle.h"

namespace corvex {

void RefreshTitle(SessionState& session) {
    const float speed = session.log.speed.load(std::memory_order_relaxed);
    const std::string title = WindowTitle(session.settings.lastadxpath, session.settings.lastxdlpath, speed);
    ::SetWindowTextA(static_cast<HWND>(session.mainWindow), title.c_str());
}

}  // namespace corvex
