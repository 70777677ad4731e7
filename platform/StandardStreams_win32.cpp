#include <io.h>

#include <cstdio>

#include "platform/StandardStreams.h"
#include "platform/WindowsApi.h"

namespace corvex {

namespace {

// A handle that the parent closed names nothing, and perhaps our next file.
bool IsThere(HANDLE handle) {
    if (handle == nullptr || handle == INVALID_HANDLE_VALUE) return false;
    SetLastError(NO_ERROR);
    return GetFileType(handle) != FILE_TYPE_UNKNOWN || GetLastError() == NO_ERROR;
}

HANDLE HandleOf(std::FILE* stream) {
    const int descriptor = _fileno(stream);
    return descriptor < 0 ? nullptr : reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

void Hold(std::FILE* stream, const char* mode, DWORD which) {
    if (IsThere(GetStdHandle(which)) && IsThere(HandleOf(stream))) return;
    if (std::freopen("NUL", mode, stream) == nullptr) return;
    SetStdHandle(which, HandleOf(stream));
}

}  // namespace

// The descriptors of the C library and the handles of the system, which know nothing of each other.
void HoldStandardStreams() {
    Hold(stdin, "r", STD_INPUT_HANDLE);
    Hold(stdout, "w", STD_OUTPUT_HANDLE);
    Hold(stderr, "w", STD_ERROR_HANDLE);
}

}  // namespace corvex
