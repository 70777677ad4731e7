// What the library's ordinal 1 stands for.
#pragma once

#include "session/window/EditorEntry.h"

// As EditorEntry says.
extern "C" int __cdecl EditDefinition(HWND owner, char* path, corvex::DebugOutput* output, std::uintptr_t reserved);
