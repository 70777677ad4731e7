// A window with a tree of titles on the left and the chosen title's page on the right, over OK and Cancel.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kPropTreeClass[] = "QZPROPTREECONTAINER";

// By WM_NOTIFY with an NMHDR to the parent.
enum PropTreeNotification : UINT {
    PTN_READY = 1,   // comes by the message queue
    PTN_CLOSED = 2,  // WM_NCDESTROY: a parent that disabled itself is enabled too late here to be activated by itself
    PTN_CLOSING = 3,
    PTN_OK = 4,      // not 0 destroys the window, 0 keeps it open
    PTN_CANCEL = 5,  // the same
    PTN_PAGE_GONE = 6,
};

// All of it on the window's thread. Operations on a window that is none of this class answer null or false.
class PropTreeContainer {
public:
    static bool Register(HINSTANCE instance);

    // A visible frame of its own, owned by `parent`. Widths and heights in pixels.
    static HWND create(HWND parent, HINSTANCE instance, const char* title, int treeWidth, int minimumHeight);
    // A dialog made from a template. Parent and item to insert after are found by title; an unknown or null parent
    // means the root. The page's window, null on failure.
    static HWND addPage(HWND window, DLGPROC dialogProc, HINSTANCE instance, int templateId, const char* title,
                        const char* insertAfterTitle, const char* parentTitle);
    static bool selectByTitle(HWND window, const char* title);
    // The page on show.
    static HWND currentPage(HWND window);
};

}  // namespace corvex
