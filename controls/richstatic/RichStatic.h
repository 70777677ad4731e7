// A label with colours of its own and a message that shows for a time: the left panel of the status bar.
#pragma once

#include <cstdint>

#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kRichStaticClass[] = "QZRICHSTATIC";

enum RichStaticMessage : UINT {
    RSM_SETBACKCOLOR = 1374,  // lParam the colour, 0x00BBGGRR; the old one is returned
    RSM_SETTEXTCOLOR = 1375,
};

// The window class and what callers do with its windows. Windows are made with CreateWindowExA and belong to the thread
// that made them. All messages may be sent from any thread; WM_SETTEXT and the colours change what comes after a flash
// while one is running.
class RichStatic {
public:
    static bool Register(HINSTANCE instance);

    // Sends text colour, back colour and text, in this order. Any thread.
    static void setAll(HWND window, const char* text, std::uint32_t textColour, std::uint32_t backColour);
    // Shows a text in colours of its own for `milliseconds`. Does nothing while another flash runs. Any thread of this
    // process; the call is carried to the thread that owns the window and returns when it is done.
    static void flash(HWND window, const char* text, std::uint32_t textColour, std::uint32_t backColour,
                      std::uint32_t milliseconds);
};

}  // namespace corvex
