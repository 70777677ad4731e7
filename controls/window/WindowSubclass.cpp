#include "controls/window/WindowSubclass.h"

#include <exception>

namespace corvex {

namespace {

// By the calls of the window's own character set: by the others it would be taken for a window of the other one.
LONG_PTR ProcedureOf(HWND window) {
    return ::IsWindowUnicode(window) != FALSE ? ::GetWindowLongPtrW(window, GWLP_WNDPROC)
                                              : ::GetWindowLongPtrA(window, GWLP_WNDPROC);
}

void SetProcedure(HWND window, WNDPROC procedure) {
    const auto word = reinterpret_cast<LONG_PTR>(procedure);
    if (::IsWindowUnicode(window) != FALSE) {
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, word);
    } else {
        ::SetWindowLongPtrA(window, GWLP_WNDPROC, word);
    }
}

}  // namespace

LRESULT WindowSubclass::Former(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::IsWindowUnicode(Window()) != FALSE ? ::CallWindowProcW(former_, Window(), message, wParam, lParam)
                                                : ::CallWindowProcA(former_, Window(), message, wParam, lParam);
}

WindowSubclass* SubclassObjectOf(HWND window, const char* property) {
    return static_cast<WindowSubclass*>(::GetPropA(window, property));
}

bool AttachSubclass(std::unique_ptr<WindowSubclass> object, const char* property, WNDPROC procedure) {
    const HWND window = object->Window();
    const LONG_PTR former = ProcedureOf(window);
    if (former == 0 || SubclassObjectOf(window, property) != nullptr) return false;
    if (::SetPropA(window, property, object.get()) == FALSE) return false;
    object.release()->former_ = reinterpret_cast<WNDPROC>(former);
    SetProcedure(window, procedure);
    return true;
}

bool DetachSubclass(HWND window, const char* property, WNDPROC procedure) {
    WindowSubclass* const object = SubclassObjectOf(window, property);
    if (object == nullptr || ProcedureOf(window) != reinterpret_cast<LONG_PTR>(procedure)) return false;
    SetProcedure(window, object->former_);
    ::RemovePropA(window, property);
    WindowHold(object).Release();
    return true;
}

// Nothing may leave a window procedure but its result: the frames below are the system's.
LRESULT DispatchToSubclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, const char* property) try {
    WindowSubclass* const object = SubclassObjectOf(window, property);
    if (object == nullptr) return ::DefWindowProcA(window, message, wParam, lParam);

    const WindowHold hold(object);
    const LRESULT result = object->OnMessage(message, wParam, lParam);
    // Unless it was taken away while it handled this.
    if (message == WM_NCDESTROY && SubclassObjectOf(window, property) == object) {
        ::RemovePropA(window, property);
        hold.Release();
    }
    return result;
} catch (...) {
    std::terminate();
}

}  // namespace corvex
