// The check mark among the playback speeds of the menu.
#pragma once

#include <cstdint>

#include "platform/WindowsApi.h"

namespace corvex {

// Takes the mark off all of the speeds and gives it to this command alone. Main thread.
void CheckSpeed(HWND mainWindow, std::uint32_t command);

}  // namespace corvex
