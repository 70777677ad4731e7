// Sees what only the program itself can: the pixels of its windows.
#pragma once

#include <memory>

#include "platform/WindowsApi.h"
#include "tests/program/driver/EyesRequest.h"
#include "tests/program/driver/Picture.h"
#include "tools/driver/RemoteMemory.h"

namespace corvex::test {

// Loads a library into the program for as long as it lives; the program must not be gone before.
class Eyes {
public:
    // Any window of the thread to look around in.
    explicit Eyes(HWND window);
    ~Eyes();
    Eyes(const Eyes&) = delete;
    Eyes& operator=(const Eyes&) = delete;

    // The client area as it is on the screen now; nothing is painted for it. What the program's thread cannot do, be it
    // that it is frozen, throws std::runtime_error.
    Picture Of(HWND window) const;

private:
    HWND window_;
    HHOOK hook_;
    RemoteBlock block_;
};

}  // namespace corvex::test
