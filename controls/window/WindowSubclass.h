// The one way to listen in on a window that somebody else's class made: an object in front of its procedure.
#pragma once

#include <memory>

#include "controls/window/WindowObject.h"

namespace corvex {

// The object in front. It belongs to its window until that goes or Detach takes it away. Each
// class has a window procedure of its own, by which it is known, so that objects of several can stand before one
// window.
class WindowSubclass : public WindowObject {
public:
    explicit WindowSubclass(HWND window) : WindowObject(window) {}

    // Every message up to WM_NCDESTROY, in the window's own character set. What it does not keep for itself, and
    // WM_NCDESTROY in any case, it hands to Former. May not throw.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

protected:
    // The procedure that was the window's before.
    LRESULT Former(UINT message, WPARAM wParam, LPARAM lParam) const;

private:
    friend LRESULT DispatchToSubclass(HWND, UINT, WPARAM, LPARAM, WNDPROC);
    friend bool AttachSubclass(std::unique_ptr<WindowSubclass>, WNDPROC);
    friend bool DetachSubclass(HWND, WNDPROC);
    WNDPROC former_ = nullptr;
};

LRESULT DispatchToSubclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, WNDPROC procedure);
bool AttachSubclass(std::unique_ptr<WindowSubclass> object, WNDPROC procedure);
bool DetachSubclass(HWND window, WNDPROC procedure);
WindowSubclass* SubclassObjectOf(HWND window, WNDPROC procedure);

template <class Subclass>
LRESULT CALLBACK SubclassProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DispatchToSubclass(window, message, wParam, lParam, &SubclassProcedure<Subclass>);
}

// False for a window that has an object of this class, and for one that is gone.
template <class Subclass>
bool Attach(std::unique_ptr<Subclass> object) {
    return AttachSubclass(std::move(object), &SubclassProcedure<Subclass>);
}

// Null for a window without one.
template <class Subclass>
Subclass* SubclassOf(HWND window) {
    return static_cast<Subclass*>(SubclassObjectOf(window, &SubclassProcedure<Subclass>));
}

// Gives the window its former procedure back. False, and the object stays, when somebody has come in front of it since,
// who goes on calling it.
template <class Subclass>
bool Detach(HWND window) {
    return DetachSubclass(window, &SubclassProcedure<Subclass>);
}

}  // namespace corvex
