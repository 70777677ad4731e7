// What every object behind a window has in common: a life that ends with the window, but never under a handler.
#pragma once

#include <utility>

#include "platform/WindowsApi.h"

namespace corvex {

// Belongs to its window and goes with it, or, when the window is destroyed from inside one of the object's own
// handlers, as soon as the outermost of them has returned. Only on the window's thread.
class WindowObject {
public:
    virtual ~WindowObject() = default;
    WindowObject(const WindowObject&) = delete;
    WindowObject& operator=(const WindowObject&) = delete;

    // Null for a dialog that has not been made yet.
    HWND Window() const { return window_; }

protected:
    explicit WindowObject(HWND window) : window_(window) {}
    void SetWindow(HWND window) { window_ = window; }

private:
    friend class WindowHold;
    HWND window_;
    unsigned depth_ = 0;  // holds on the stack
    bool gone_ = false;   // nobody reaches the object any more; it waits for them
};

// Keeps the object of a window, though not the window, for its lifetime: around each message, and for an operation that
// no message carries and in which a handler of somebody else's may destroy the window. Null is kept too.
class WindowHold {
public:
    explicit WindowHold(WindowObject* object) : object_(object) {
        if (object_ != nullptr) ++object_->depth_;
    }
    ~WindowHold() {
        if (object_ != nullptr && --object_->depth_ == 0 && object_->gone_) delete object_;
    }
    WindowHold(const WindowHold&) = delete;
    WindowHold& operator=(const WindowHold&) = delete;

    // The object's life is over, when the last hold has gone: whoever bound it to its window has let it go.
    void Release() const {
        if (object_ != nullptr) object_->gone_ = true;
    }

private:
    WindowObject* const object_;
};

}  // namespace corvex
