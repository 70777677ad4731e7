// The one way to windows.h. Strict handle types, no min and max macros, and none of the macros that would rename an
// operation of ours: GetObject above all, which the definition has too. Call the system's own by their A or W names.
#pragma once

#ifndef NOMINMAX  // mingw's library headers set it too
#define NOMINMAX
#endif
#define STRICT
#define WIN32_LEAN_AND_MEAN

#include <windows.h>

#undef CopyFile
#undef CreateFile
#undef CreateWindow
#undef DeleteFile
#undef DrawText
#undef FindText
#undef GetClassName
#undef GetCurrentTime
#undef GetMessage
#undef GetObject
#undef LoadString
#undef MoveFile
#undef PostMessage
#undef SendMessage
#undef Yield
#undef far
#undef interface
#undef near
