// The one window wrapper: registers a class, binds an object to each window of it, and turns messages into calls.
#pragma once

#include <functional>
#include <memory>
#include <type_traits>

#include "controls/window/WindowObject.h"

namespace corvex {

// The object behind a window of a class of ours. It is built at WM_NCCREATE and belongs to the window.
class ControlWindow : public WindowObject {
public:
    explicit ControlWindow(HWND window) : WindowObject(window) {}

    // Every message from WM_NCCREATE to WM_NCDESTROY. What it does not handle it hands to Default. May not throw.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

protected:
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::DefWindowProcA(Window(), message, wParam, lParam);
    }
};

struct ControlClass {
    const char* name;
    UINT style = 0;
    HBRUSH background = nullptr;  // a brush, or a system colour plus 1
    HICON icon = nullptr, smallIcon = nullptr;
    const char* menu = nullptr;
    bool hasCursor = true;  // the arrow; else the window sets the pointer itself
};

using CarriedCall = std::function<void(ControlWindow&)>;

bool CarryCall(HWND window, const CarriedCall& call);
// A system colour, COLOR_WINDOW for instance, in the form of a class's background.
inline HBRUSH SystemBackground(int colour) {
    return reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(colour + 1));
}

LRESULT DispatchToControl(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                          std::unique_ptr<ControlWindow> (*make)(HWND, void*));
bool RegisterControlClass(HINSTANCE instance, const ControlClass& control, WNDPROC procedure);
bool HasClassProcedure(HWND window, WNDPROC procedure);
ControlWindow* ObjectOf(HWND window);

// `Control` is a ControlWindow with a constructor from HWND, or from HWND and the parameter of CreateWindowExA.
template <class Control>
std::unique_ptr<ControlWindow> MakeControl(HWND window, [[maybe_unused]] void* parameter) {
    if constexpr (std::is_constructible_v<Control, HWND, void*>) {
        return std::make_unique<Control>(window, parameter);
    } else {
        return std::make_unique<Control>(window);
    }
}

template <class Control>
LRESULT CALLBACK ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DispatchToControl(window, message, wParam, lParam, &MakeControl<Control>);
}

// True also for a class that is registered already.
template <class Control>
bool RegisterControl(HINSTANCE instance, const ControlClass& control) {
    return RegisterControlClass(instance, control, &ControlProcedure<Control>);
}

// The object of a window; null when the window is none of this class or its object is gone.
template <class Control>
Control* ControlOf(HWND window) {
    if (!HasClassProcedure(window, &ControlProcedure<Control>)) return nullptr;
    return static_cast<Control*>(ObjectOf(window));
}

// Has work done with the object of a window, on the window's own thread, and waits for it. The work may not throw. Any
// thread of this process. False when nothing was done: the window is none of this class, or went meanwhile.
template <class Control, class Work>
bool CallOnOwner(HWND window, const Work& work) {
    if (!HasClassProcedure(window, &ControlProcedure<Control>)) return false;
    return CarryCall(window, [&work](ControlWindow& control) { work(static_cast<Control&>(control)); });
}

}  // namespace corvex
