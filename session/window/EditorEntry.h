// The one way into the editor library, as the program and the library both know it.
#pragma once

#include <cstdint>

#include "platform/WindowsApi.h"
#include "session/base/DebugOutput.h"

namespace corvex {

// Ordinal 1 of the library, its only entry, by the C convention.
//
// Opens the editor, modal on `owner`, which may be null. `path` is a buffer of 260 characters: the definition to edit,
// or empty for a new one, and after a save the name of the file saved. Not 0 when a file was saved. 0, with the path as
// it was, when none was, when `path` is null, or while the editor is open already. Nothing is thrown. `reserved` is 0
// and kept for later.
//
// `output`, which may be null, gets a line for each save. It is an object of the caller's with a class of the caller's
// inside (ITextAppender), called through its table: both sides must have been built from the same sources by the same
// compiler, as the program and this library are.
using EditorEntry = int(__cdecl*)(HWND owner, char* path, DebugOutput* output, std::uintptr_t reserved);

}  // namespace corvex
