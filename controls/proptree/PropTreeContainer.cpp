#include "controls/proptree/PropTreeContainer.h"

#include "controls/proptree/PropTreeWindow.h"
// After windows.h, which it leans on.
#include <commctrl.h>

namespace corvex {

namespace {

constexpr DWORD kFrameStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN;

template <class Result, class Operation>
Result OnTree(HWND window, Result otherwise, Operation operation) {
    PropTreeWindow* const control = ControlOf<PropTreeWindow>(window);
    if (control == nullptr) return otherwise;
    const WindowHold hold(control);
    return operation(*control);
}

}  // namespace

bool PropTreeContainer::Register(HINSTANCE instance) {
    INITCOMMONCONTROLSEX needed{sizeof needed, ICC_TREEVIEW_CLASSES};
    ::InitCommonControlsEx(&needed);
    ControlClass windowClass{kPropTreeClass};
    windowClass.background = SystemBackground(COLOR_BTNFACE);
    return RegisterControl<PropTreeWindow>(instance, windowClass);
}

HWND PropTreeContainer::create(HWND parent, HINSTANCE instance, const char* title, int treeWidth, int minimumHeight) {
    PropTreeSizes sizes{treeWidth, minimumHeight};
    const HWND window = ::CreateWindowExA(WS_EX_CONTROLPARENT, kPropTreeClass, title, kFrameStyle, 0, 0, 0, 0, parent,
                                          nullptr, instance, &sizes);
    const bool sized = OnTree(window, false, [](PropTreeWindow& control) { return control.Grow(), true; });
    if (!sized) return nullptr;
    ::ShowWindow(window, SW_SHOW);
    return ::IsWindow(window) ? window : nullptr;
}

HWND PropTreeContainer::addPage(HWND window, DLGPROC dialogProc, HINSTANCE instance, int templateId, const char* title,
                                const char* insertAfterTitle, const char* parentTitle) {
    return OnTree(window, HWND{}, [&](PropTreeWindow& control) -> HWND {
        const HWND page = ::CreateDialogParamA(instance, MAKEINTRESOURCEA(templateId), window, dialogProc, 0);
        if (page == nullptr) return nullptr;
        if (control.Add(page, title, insertAfterTitle, parentTitle)) return page;
        if (::IsWindow(page)) ::DestroyWindow(page);
        return nullptr;
    });
}

bool PropTreeContainer::selectByTitle(HWND window, const char* title) {
    return OnTree(window, false, [&](PropTreeWindow& control) { return control.SelectByTitle(title); });
}

HWND PropTreeContainer::currentPage(HWND window) {
    return OnTree(window, HWND{}, [](PropTreeWindow& control) { return control.CurrentPage(); });
}

}  // namespace corvex
