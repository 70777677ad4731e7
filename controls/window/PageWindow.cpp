#include "controls/window/PageWindow.h"

#include "controls/window/PageStyleModel.h"

namespace corvex {

namespace {

DWORD StyleOf(HWND window) {
    return static_cast<DWORD>(::GetWindowLongPtrA(window, GWL_STYLE));
}

void SetStyle(HWND window, DWORD style) {
    ::SetWindowLongPtrA(window, GWL_STYLE, static_cast<LONG>(style));
}

bool MayBePage(HWND window, HWND parent) {
    if (!::IsWindow(window) || !::IsWindow(parent) || window == parent || ::IsChild(window, parent)) return false;
    return ::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId();
}

void FrameChanged(HWND window) {
    ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

}  // namespace

bool BecomePage(HWND window, HWND parent, DWORD extraStyle) {
    if (!MayBePage(window, parent)) return false;
    ::ShowWindow(window, SW_HIDE);
    const DWORD former = StyleOf(window);
    SetStyle(window, PageStyle(former) | extraStyle);  // before the parent is set, or the system takes it for an owner
    ::SetWindowLongPtrA(window, GWL_EXSTYLE, ::GetWindowLongPtrA(window, GWL_EXSTYLE) & ~WS_EX_NOPARENTNOTIFY);
    ::SetParent(window, parent);
    if (::GetAncestor(window, GA_PARENT) != parent) {
        if (::IsWindow(window)) SetStyle(window, former);
        return false;
    }
    FrameChanged(window);
    return ::IsWindow(window) != FALSE;
}

void LeaveParent(HWND page) {
    ::ShowWindow(page, SW_HIDE);
    ::SetParent(page, nullptr);
    SetStyle(page, AloneStyle(StyleOf(page)));
    FrameChanged(page);
}

HWND ParentToTell(HWND control) {
    const bool child = (StyleOf(control) & WS_CHILD) != 0;
    return child ? ::GetAncestor(control, GA_PARENT) : ::GetWindow(control, GW_OWNER);
}

LRESULT TellParent(HWND parent, HWND control, UINT code) {
    if (parent == nullptr) return 0;
    NMHDR notice{};
    notice.hwndFrom = control;
    notice.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(control));
    notice.code = code;
    return ::SendMessageA(parent, WM_NOTIFY, notice.idFrom, reinterpret_cast<LPARAM>(&notice));
}

}  // namespace corvex
