#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

class Desktop;

// The program from its first check to its last message: starts the editor library, makes and shows the main window,
// runs the message loop and sees the workers out. The process' exit code.
int RunDesktop(Desktop& desktop, int show);

}  // namespace corvex
