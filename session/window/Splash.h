// The picture that shows while the program starts.
#pragma once

#include <memory>

#include "platform/WindowsApi.h"

namespace corvex {

// On show for three seconds, with the program's version on it. The window goes with the pointer. Main thread.
std::shared_ptr<void> MakeSplash(HWND owner, HINSTANCE instance);

}  // namespace corvex
