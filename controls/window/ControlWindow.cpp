#include "controls/window/ControlWindow.h"

#include <exception>
#include <new>

#include "platform/PrivateMessages.h"

namespace corvex {

namespace {

void Bind(HWND window, ControlWindow* control) {
    ::SetWindowLongPtrA(window, 0, reinterpret_cast<LONG_PTR>(control));
}

// False when there is no memory for the object.
bool BindNew(HWND window, void* parameter, std::unique_ptr<ControlWindow> (*make)(HWND, void*)) try {
    Bind(window, make(window, parameter).release());
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

}  // namespace

ControlWindow* ObjectOf(HWND window) {
    return reinterpret_cast<ControlWindow*>(::GetWindowLongPtrA(window, 0));
}

// Nothing may leave a window procedure but its result: the frames below are the system's.
LRESULT DispatchToControl(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                          std::unique_ptr<ControlWindow> (*make)(HWND, void*)) try {
    if (message == WM_NCCREATE) {
        void* const parameter = reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams;
        if (!BindNew(window, parameter, make)) return FALSE;  // which fails the creation of the window
    }
    ControlWindow* const control = ObjectOf(window);
    if (control == nullptr) return ::DefWindowProcA(window, message, wParam, lParam);

    const WindowHold hold(control);
    if (message == kMessageCarriedCall && lParam != 0) {
        (*reinterpret_cast<const CarriedCall*>(lParam))(*control);
        return TRUE;
    }
    const LRESULT result = control->OnMessage(message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        Bind(window, nullptr);
        hold.Release();
    }
    return result;
} catch (...) {
    std::terminate();
}

bool CarryCall(HWND window, const CarriedCall& call) {
    return ::SendMessageA(window, kMessageCarriedCall, 0, reinterpret_cast<LPARAM>(&call)) != FALSE;
}

bool RegisterControlClass(HINSTANCE instance, const ControlClass& control, WNDPROC procedure) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = control.style;
    windowClass.lpfnWndProc = procedure;
    windowClass.cbWndExtra = sizeof(void*);
    windowClass.hInstance = instance;
    windowClass.hIcon = control.icon;
    windowClass.hIconSm = control.smallIcon;
    if (control.hasCursor) windowClass.hCursor = ::LoadCursorA(nullptr, MAKEINTRESOURCEA(32512));  // IDC_ARROW
    windowClass.hbrBackground = control.background;
    windowClass.lpszMenuName = control.menu;
    windowClass.lpszClassName = control.name;
    return ::RegisterClassExA(&windowClass) != 0 || ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

bool HasClassProcedure(HWND window, WNDPROC procedure) {
    return window != nullptr && ::GetClassLongPtrA(window, GCLP_WNDPROC) == reinterpret_cast<ULONG_PTR>(procedure);
}

}  // namespace corvex
