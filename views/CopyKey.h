// Ctrl+C in a control that would copy less than its page can.
#pragma once

#include <functional>

#include "platform/WindowsApi.h"

namespace corvex {

// From now on, and for as long as the control is there, the key calls `copy` and does not reach it. Once for a control,
// on its thread.
void TakeCopyKey(HWND control, std::function<void()> copy);

}  // namespace corvex
