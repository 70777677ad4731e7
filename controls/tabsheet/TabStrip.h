// The tab control of a sheet: a list of titles, each with its page's window.
#pragma once

#include <string>

#include "platform/WindowsApi.h"

namespace corvex {

// Does not own the tab control, which goes with its parent. Without one the list is empty. On the windows' thread.
class TabStrip {
public:
    bool Create(HWND parent, HFONT font);
    void Forget() { control_ = nullptr; }
    HWND Control() const { return control_; }

    int Count() const;
    HWND PageAt(int index) const;  // null outside the list
    int IndexOf(HWND page) const;  // -1 when it is none of them
    int Selected() const;          // -1 for none
    // Says nothing to the parent. -1 selects none.
    void Select(int index);
    // Anything but a place in the list appends. The index, -1 on failure.
    int Insert(int index, const char* title, HWND page);
    void Delete(int index);
    // At most `capacity` - 1 characters and a terminator. The length copied.
    int Title(int index, char* buffer, int capacity) const;
    std::string TitleAt(int index) const;

    // Covers the parent's client area.
    void FillParent();
    // The room for a page, in the tab control's own coordinates.
    RECT PageArea() const;

private:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageA(control_, message, wParam, lParam);
    }

    HWND control_ = nullptr;
};

}  // namespace corvex
