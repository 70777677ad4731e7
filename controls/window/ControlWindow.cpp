#include "controls/window/ControlWindow.h"

namespace corvex {

namespace {

void Bind(HWND window, ControlWindow* control) {
    ::SetWindowLongPtrA(window, 0, reinterpret_cast<LONG_PTR>(control));
}

}  // namespace

ControlWindow* ObjectOf(HWND window) {
    return reinterpret_cast<ControlWindow*>(::GetWindowLongPtrA(window, 0));
}

// Nothing may leave a window procedure but its result: the frames below are the system's.
LRESULT DispatchToControl(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                          std::unique_ptr<ControlWindow> (*make)(HWND, void*)) try {
    if (message == WM_NCCREATE) {
        Bind(window, make(window, reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams).release());
    }
    ControlWindow* const control = ObjectOf(window);
    if (control == nullptr) return ::DefWindowProcA(window, message, wParam, lParam);

    ++control->depth_;
    const LRESULT result = control->OnMessage(message, wParam, lParam);
    --control->depth_;
    if (message == WM_NCDESTROY) {
        Bind(window, nullptr);
        control->gone_ = true;
    }
    if (control->gone_ && control->depth_ == 0) delete control;
    return result;
} catch (...) {
    std::terminate();
}

bool RegisterControlClass(HINSTANCE instance, const ControlClass& control, WNDPROC procedure) {
    WNDCLASSEXA words{};
    words.cbSize = sizeof words;
    words.style = control.style;
    words.lpfnWndProc = procedure;
    words.cbWndExtra = sizeof(void*);
    words.hInstance = instance;
    words.hIcon = control.icon;
    words.hIconSm = control.smallIcon;
    words.hCursor = ::LoadCursorA(nullptr, MAKEINTRESOURCEA(32512));  // IDC_ARROW
    words.hbrBackground = control.background;
    words.lpszMenuName = control.menu;
    words.lpszClassName = control.name;
    return ::RegisterClassExA(&words) != 0 || ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

bool HasClassProcedure(HWND window, WNDPROC procedure) {
    return window != nullptr && ::GetClassLongPtrA(window, GCLP_WNDPROC) == reinterpret_cast<ULONG_PTR>(procedure);
}

}  // namespace corvex
