// Asks for the name of a definition file to save to.
#pragma once

#include <string>

#include "platform/WindowsApi.h"

namespace corvex {

// Begins with `path`, which may be empty. The name chosen, of at most 259 characters; empty when the user would not
// choose one. An existing file has been asked about. The current folder stays the same.
std::string AskForSaveName(HWND owner, const std::string& path);

}  // namespace corvex
