// Pages around a tab control, one of which may be pulled out to stand alone.
#pragma once

#include "platform/WindowsApi.h"

namespace corvex {

inline constexpr char kTabSheetClass[] = "QZTABSHEET";

enum TabSheetMessage : UINT {
    TSM_PAGECONTEXTMENU = 1524,  // to the sheet's parent, wParam and lParam of a page's WM_CONTEXTMENU
};
enum TabSheetNotification : UINT {  // by WM_NOTIFY with an NMHDR to the sheet's parent
    TSN_DESTROYED = 1,
    TSN_RESIZED = 3,
    TSN_READY = 4,  // created; comes by the message queue
};
// Bits of the hit-test word: these parts of the frame can't be dragged.
enum TabSheetLock : unsigned {
    kLockTop = 0x01,
    kLockBottom = 0x02,
    kLockLeft = 0x04,
    kLockRight = 0x08,
    kLockTopLeft = 0x10,
    kLockTopRight = 0x20,
    kLockBottomLeft = 0x40,
    kLockBottomRight = 0x80,
};

// The class, and its operations on a window of it, which answer 0, null, -1 or false for any other window. Windows are
// made with CreateWindowExA, as children or as frames of their own. All of it on the window's thread. Pages belong to
// the sheet once added. An index counts the tabs; a detached page has none. The first page shows as soon as it is
// there.
class TabSheet {
public:
    static bool Register(HINSTANCE instance);

    // A dialog made from a template, with `param` in its WM_INITDIALOG. Index -1 appends. The new page's window, null
    // on failure. With `show` the page is selected.
    static HWND addDialogPage(HWND sheet, DLGPROC dialogProc, HINSTANCE instance, int templateId, const char* title,
                              int index, LPARAM param, bool show);
    // An existing window, which loses caption, frame and pop-up style and gets the tab control for its parent.
    static bool addWindowPage(HWND sheet, HWND window, const char* title, int index);
    // Without `destroy` the page is hidden and left to the caller. Removing the last page destroys the sheet.
    static bool removePage(HWND sheet, int index, bool destroy);
    static bool selectPage(HWND sheet, int index);
    static bool selectPageByWindow(HWND sheet, HWND window);
    static HWND getPage(HWND sheet, int index);
    static int indexOfPage(HWND sheet, HWND window);
    // The length copied, without the terminator.
    static int getTitle(HWND sheet, int index, char* buffer, int capacity);
    static int pageCount(HWND sheet);

    // Pulls the current page out and maximises it, as a double click on the sheet's caption does; the sheet then shows
    // no page until another is chosen, which docks. With a page pulled out already, it is docked and shown. True when a
    // page was pulled out.
    static bool detach(HWND sheet);
    // Back to its place under its title, and shown.
    static bool dock(HWND sheet);
    static HWND detachedPage(HWND sheet);

    static void setHitTestLocks(HWND sheet, unsigned locks);
    static void setMovable(HWND sheet, bool movable);
};

}  // namespace corvex
