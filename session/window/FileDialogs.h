// The system's dialogs that ask for the name of a file.
#pragma once

#include <optional>
#include <string>

#include "platform/WindowsApi.h"
#include "session/FilePrompt.h"
#include "session/base/DebugOutput.h"

namespace corvex {

// The name that the user gives, at most 259 characters, with the prompt's extension behind one that had none. Nothing
// when the user changes their mind, and for a longer name, of which `debug`, if not null, gets a line. The current
// folder stays. `owner` is disabled meanwhile and messages go on being handled. The owner's thread.
std::optional<std::string> AskOpenPath(HWND owner, const FilePrompt& prompt, DebugOutput* debug = nullptr);
std::optional<std::string> AskSavePath(HWND owner, const FilePrompt& prompt, DebugOutput* debug = nullptr);

}  // namespace corvex
