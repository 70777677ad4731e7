// Which module this code is in: the library, or a program that has the editor inside.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

// Its resources are found here.
HINSTANCE OwnModule();

}  // namespace corvex
