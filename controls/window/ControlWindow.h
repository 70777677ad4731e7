// The one window wrapper: registers a class, binds an object to each window of it, and turns messages into calls.
#pragma once

#include <exception>
#include <memory>
#include <type_traits>

#include "platform/WindowsApi.h"

namespace corvex {

// The object behind a window. It is built at WM_NCCREATE and goes with WM_NCDESTROY, or, when its window is destroyed
// from inside one of its own handlers, as soon as the outermost of them has returned. Only on the window's thread.
class ControlWindow {
public:
    explicit ControlWindow(HWND window) : window_(window) {}
    virtual ~ControlWindow() = default;
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;

    // Every message from WM_NCCREATE to WM_NCDESTROY. What it does not handle it hands to Default. May not throw.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    HWND Window() const { return window_; }

protected:
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::DefWindowProcA(window_, message, wParam, lParam);
    }

private:
    friend LRESULT DispatchToControl(HWND, UINT, WPARAM, LPARAM, std::unique_ptr<ControlWindow> (*)(HWND, void*));
    friend class ControlHold;
    const HWND window_;
    unsigned depth_ = 0;  // handlers on the stack
    bool gone_ = false;   // the window is; the object waits for them
};

// Keeps the object of a window, though not the window, for its lifetime: for an operation that no message carries and
// in which a handler of somebody else's may destroy the window. Null is kept too.
class ControlHold {
public:
    explicit ControlHold(ControlWindow* control) : control_(control) {
        if (control_ != nullptr) ++control_->depth_;
    }
    ~ControlHold() {
        if (control_ != nullptr && --control_->depth_ == 0 && control_->gone_) delete control_;
    }
    ControlHold(const ControlHold&) = delete;
    ControlHold& operator=(const ControlHold&) = delete;

private:
    ControlWindow* const control_;
};

struct ControlClass {
    const char* name;
    UINT style = 0;
    HBRUSH background = nullptr;  // a brush, or a system colour plus 1
    HICON icon = nullptr, smallIcon = nullptr;
    const char* menu = nullptr;
};

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

// With the arrow cursor. True also for a class that is registered already.
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

}  // namespace corvex
