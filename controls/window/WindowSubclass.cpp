#include "controls/window/WindowSubclass.h"

#include <algorithm>
#include <exception>
#include <mutex>
#include <vector>

namespace corvex {

namespace {

// Whose object stands before which window. A list of our own and no property of the window: that is asked for with
// every message, and some versions of the system keep properties in another process.
class Bindings {
public:
    WindowSubclass* Find(HWND window, WNDPROC procedure) {
        const std::lock_guard guard(lock_);
        const auto found = Place(window, procedure);
        return found == all_.end() ? nullptr : found->object;
    }
    void Add(HWND window, WNDPROC procedure, WindowSubclass* object) {
        const std::lock_guard guard(lock_);
        // A thread that ended with its windows told nobody.
        std::erase_if(all_, [](const Binding& one) { return ::IsWindow(one.window) == FALSE; });
        all_.push_back({window, procedure, object});
    }
    void Remove(HWND window, WNDPROC procedure) {
        const std::lock_guard guard(lock_);
        if (const auto found = Place(window, procedure); found != all_.end()) all_.erase(found);
    }

private:
    struct Binding {
        HWND window;
        WNDPROC procedure;  // one for each class
        WindowSubclass* object;
    };
    std::vector<Binding>::iterator Place(HWND window, WNDPROC procedure) {
        return std::find_if(all_.begin(), all_.end(),
                            [&](const Binding& one) { return one.window == window && one.procedure == procedure; });
    }

    std::mutex lock_;
    std::vector<Binding> all_;
};

// Never destroyed, as a window may go after everything else.
Bindings& AllBindings() {
    static Bindings& all = *new Bindings;
    return all;
}

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

WindowSubclass* SubclassObjectOf(HWND window, WNDPROC procedure) {
    return AllBindings().Find(window, procedure);
}

bool AttachSubclass(std::unique_ptr<WindowSubclass> object, WNDPROC procedure) {
    const HWND window = object->Window();
    const LONG_PTR former = ProcedureOf(window);
    if (former == 0 || SubclassObjectOf(window, procedure) != nullptr) return false;
    AllBindings().Add(window, procedure, object.get());
    object.release()->former_ = reinterpret_cast<WNDPROC>(former);
    SetProcedure(window, procedure);
    return true;
}

bool DetachSubclass(HWND window, WNDPROC procedure) {
    WindowSubclass* const object = SubclassObjectOf(window, procedure);
    if (object == nullptr || ProcedureOf(window) != reinterpret_cast<LONG_PTR>(procedure)) return false;
    SetProcedure(window, object->former_);
    AllBindings().Remove(window, procedure);
    WindowHold(object).Release();
    return true;
}

// Nothing may leave a window procedure but its result: the frames below are the system's.
LRESULT DispatchToSubclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, WNDPROC procedure) try {
    WindowSubclass* const object = SubclassObjectOf(window, procedure);
    if (object == nullptr) return ::DefWindowProcA(window, message, wParam, lParam);

    const WindowHold hold(object);
    const LRESULT result = object->OnMessage(message, wParam, lParam);
    // Unless it was taken away while it handled this.
    if (message == WM_NCDESTROY && SubclassObjectOf(window, procedure) == object) {
        AllBindings().Remove(window, procedure);
        hold.Release();
    }
    return result;
} catch (...) {
    std::terminate();
}

}  // namespace corvex
