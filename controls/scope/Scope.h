// A trace window: samples that come one by one run through it from right to left, or a block of memory lies in it
// still.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kScopeClass[] = "QZSCOPE";
// With this code, its control id and the screen coordinates in lParam it sends WM_COMMAND to its parent when a menu is
// wanted.
inline constexpr UINT kScopeMenuCode = 1074;

// Parameters are in lParam where nothing else is said; what is not said to answer something answers 0. Null pointers
// change nothing; null texts are empty ones. A new frame begins with an empty trace, which only SCM_SETYRANGE fills
// again from what came before; static data are drawn into each new one.
enum ScopeMessage : UINT {
    SCM_ADDSAMPLE = 1024,          // const double*
    SCM_SETYRANGE = 1025,          // wParam const double* of the upper end, lParam of the lower one; a new frame
    SCM_SETXLABEL = 1026,          // const char*, at most 50 bytes of it; a new frame
    SCM_SETYLABEL = 1027,          // the same
    SCM_SETTEXTCOLOR = 1028,       // COLORREF, of labels and lines; a new frame
    SCM_SETTRACECOLOR = 1029,      // COLORREF; a new frame
    SCM_SETBACKCOLOR = 1030,       // COLORREF, with which frame and trace are combined bit by bit; a new frame
    SCM_SETDECIMALS = 1032,        // of the numbers beside the plot, 0 to 20; with the next frame
    SCM_SETSTEP = 1033,            // pixels from sample to sample, 1 or more; static data are drawn anew
    SCM_GETSTEP = 1034,            // answers it
    SCM_REDRAW = 1035,             // a new frame, with what the static data are now
    SCM_GETVISIBLESAMPLES = 1036,  // answers how many the plot has room for
    // wParam const void*, lParam bytes. The memory stays the page's, and is read with each new frame and at no other
    // time: it is to be taken away with null before it goes.
    SCM_SETDATA = 1037,
    SCM_GETDATA = 1038,         // answers the pointer
    SCM_SETSTART = 1039,        // the first sample's number, and its byte in static data; with the next frame
    SCM_SETSAMPLEWIDTH = 1040,  // 1, 2 for whole numbers without sign, 4 for floats; with the next frame
    SCM_SETMIDLINES = 1041,     // wParam flag, lParam whether to make a new frame at once
    SCM_SETHEX = 1042,          // the same, of the numbers below the plot
    SCM_SETLIVE = 1043,         // 0: static data are shown, and samples only remembered; with the next frame
    SCM_SETUSERVALUE = 1044,    // 32 bits that are the page's own
    SCM_GETUSERVALUE = 1045,    // answers them
    SCM_SETMESSAGE = 1046,      // const char*, at most 60 bytes; wParam whether to paint at once
};

// Windows are made with CreateWindowExA, as children of a window that hears of their context menu. All on the thread of
// the window.
class Scope {
public:
    static bool Register(HINSTANCE instance);
};

}  // namespace corvex
