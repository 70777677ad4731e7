// What Eyes and the library that they load into the program tell each other.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/WindowsApi.h"

namespace corvex::test {

inline constexpr char kEyesLibrary[] = "program_eyes.dll";
// Exported by it: gives the hook procedure.
inline constexpr char kEyesEntry[] = "EyesProcedure";
using EyesEntry = HOOKPROC (*)();

// A message of this name, with an EyesTask in wParam and the address of a request in lParam, to any window of the
// thread.
inline constexpr char kEyesMessage[] = "corvex.test.eyes";

enum EyesTask : WPARAM {
    kTakePicture = 1,  // of the window's client area
    kReadMenu = 2,     // of a popup menu's window, into the text, one row a line
    kSmear = 3,        // fills the part of the window, as something drawn by mistake would
};

struct EyesRequest {
    static constexpr std::size_t kTextSize = 16384, kMostPixels = 1024 * 768;

    HWND window;
    RECT part;
    COLORREF colour;
    // The answer.
    std::uint32_t done;
    int width, height;
    char text[kTextSize];
    std::uint32_t pixels[kMostPixels];
};

}  // namespace corvex::test
