#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

// Registers every control class of the program. False when one of them can't be.
bool RegisterControlClasses(HINSTANCE instance);

}  // namespace corvex
