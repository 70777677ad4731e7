// The common controls' header, which wants the system's before it.
#pragma once

#include "platform/WindowsApi.h"
// clang-format off
#include <commctrl.h>
// clang-format on
