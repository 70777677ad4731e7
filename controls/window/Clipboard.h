// Text on the clipboard, in the system's code page.
#pragma once

#include <optional>
#include <string>

#include "platform/WindowsApi.h"

namespace corvex {

// For a window of this thread. False, and what was there may be gone, when there is no memory or somebody else has the
// clipboard open.
bool PutOnClipboard(HWND owner, const std::string& text);

// Nothing when there is no text on it, or when somebody else has it open.
std::optional<std::string> TextOfClipboard(HWND owner);

}  // namespace corvex
