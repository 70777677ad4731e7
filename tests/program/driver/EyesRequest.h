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

// A message of this name, with the address of a request in lParam, to any window of the thread.
inline constexpr char kEyesMessage[] = "corvex.test.eyes";

struct EyesRequest {
    static constexpr std::size_t kMostPixels = 1024 * 768;

    HWND window;
    // The answer.
    std::uint32_t done;
    int width, height;
    std::uint32_t pixels[kMostPixels];
};

}  // namespace corvex::test
