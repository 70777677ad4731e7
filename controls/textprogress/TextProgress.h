// A progress bar with text over it: the right panel of the status bar.
#pragma once

#include <cstdint>

#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kTextProgressClass[] = "QZTEXTPROGRESS";

enum TextProgressMessage : UINT {
    TPM_SETRANGEWORDS = 1025,  // lParam: minimum in the low word, maximum in the high word
    TPM_SETPOS = 1026,         // wParam; the old position is returned
    TPM_SETSTEP = 1028,        // wParam; the old step is returned
    TPM_STEPIT = 1029,         // the old position is returned
    TPM_SETRANGE = 1030,       // wParam minimum, lParam maximum
    TPM_GETRANGE = 1031,       // wParam 1 minimum, 0 maximum; lParam two 32-bit words to fill, or 0
    TPM_GETPOS = 1032,
    TPM_SETBARCOLOR = 1033,   // lParam; the old colour is returned
    TPM_SETTEXTCOLOR = 1324,  // lParam; the old colour is returned
    TPM_SETVERTICAL = 1325,   // lParam
    TPM_GETVERTICAL = 1326,
    TPM_GETRANGEPTRS = 1327,  // wParam to the minimum, lParam to the maximum, 32-bit words
    TPM_SETBACKCOLOR = 8193,  // lParam; the old colour is returned
};

// As RichStatic in all that concerns text, colours, flash and threads.
class TextProgress {
public:
    static bool Register(HINSTANCE instance);

    static void setAll(HWND window, const char* text, std::uint32_t textColour, std::uint32_t backColour);
    static void flash(HWND window, const char* text, std::uint32_t textColour, std::uint32_t backColour,
                      std::uint32_t milliseconds);
};

}  // namespace corvex
