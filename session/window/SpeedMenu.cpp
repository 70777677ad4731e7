#include "session/window/SpeedMenu.h"

#include "session/PlaybackSpeed.h"

namespace corvex {

void CheckSpeed(HWND mainWindow, std::uint32_t command) {
    const HMENU menu = ::GetMenu(mainWindow);
    for (const SpeedItem& item : kSpeedItems)
        ::CheckMenuItem(menu, item.command, MF_BYCOMMAND | MF_UNCHECKED);
    ::CheckMenuItem(menu, kCustomSpeedCommand, MF_BYCOMMAND | MF_UNCHECKED);
    ::CheckMenuItem(menu, command, MF_BYCOMMAND | MF_CHECKED);
}

}  // namespace corvex
