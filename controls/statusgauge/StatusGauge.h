// The lamp of a dash: a title over one word on a block of colour, one pair of them for on and one for off.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kStatusGaugeClass[] = "QZSTATUSGAUGE";
// WM_COMMAND to the parent when the menu is asked for; lParam has the screen coordinates. The analog gauge has the same
// code: the parent tells them apart by the control id.
inline constexpr UINT kStatusGaugeMenuCode = 1574;

// All return 0. A redraw word other than 0 repaints at once. Other gauges use these numbers with other meanings.
enum StatusGaugeMessage : UINT {
    SGM_SETFLAGS = 1524,      // wParam bits to add, 0 clears them all; lParam redraw
    SGM_CLEARFLAGS = 1526,    // wParam bits; lParam redraw
    SGM_SETSTATE = 1529,      // wParam; lParam redraw
    SGM_SETTITLE = 1531,      // wParam text, lParam its length: too small a length makes it empty
    SGM_GETTITLE = 1532,      // wParam buffer, lParam its size
    SGM_SETTRUETEXT = 1533,   // as the title
    SGM_GETTRUETEXT = 1534,   // as the title
    SGM_SETFALSETEXT = 1535,  // as the title
    SGM_GETFALSETEXT = 1536,  // as the title, but empty when there is no title
};

// Any thread may send, as the texts are copied before the message returns.
class StatusGauge {
public:
    static bool Register(HINSTANCE instance);
};

}  // namespace corvex
