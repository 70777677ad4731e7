#include "tools/driver/WindowFinder.h"

#include <array>
#include <stdexcept>

namespace corvex::test {

namespace {

constexpr UINT kPatience = 10000;  // ms

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

}  // namespace

LRESULT Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR answer = 0;
    ::SetLastError(0);
    if (::SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, kPatience, &answer) == 0) {
        const DWORD error = ::GetLastError();
        if (error == ERROR_TIMEOUT) throw std::runtime_error("a window of class " + ClassOf(window) + " is frozen");
        return 0;
    }
    return static_cast<LRESULT>(answer);
}

std::string TextOf(HWND window, std::size_t capacity) {
    std::string text(capacity, '\0');
    Ask(window, WM_GETTEXT, capacity, reinterpret_cast<LPARAM>(text.data()));
    text.back() = '\0';
    text.resize(text.find('\0'));
    return text;
}

std::string ClassOf(HWND window) {
    std::array<char, 256> name = {};
    ::GetClassNameA(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

std::vector<HWND> TopWindowsOf(DWORD process) {
    std::vector<HWND> all, own;
    ::EnumWindows(&Collect, reinterpret_cast<LPARAM>(&all));
    for (HWND window : all) {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        if (owner == process && ::IsWindowVisible(window)) own.push_back(window);
    }
    return own;
}

HWND FindTopWindow(DWORD process, const std::string& className, const std::string& title) {
    for (HWND window : TopWindowsOf(process)) {
        if (!className.empty() && ClassOf(window) != className) continue;
        if (title.empty() || TextOf(window) == title) return window;
    }
    return nullptr;
}

std::vector<HWND> AllBelow(HWND parent) {
    std::vector<HWND> all;
    ::EnumChildWindows(parent, &Collect, reinterpret_cast<LPARAM>(&all));
    return all;
}

HWND FindBelow(HWND parent, const std::string& className, int id) {
    for (HWND window : AllBelow(parent)) {
        if (id != -1 && ::GetDlgCtrlID(window) != id) continue;
        if (className.empty() || ::_stricmp(ClassOf(window).c_str(), className.c_str()) == 0) return window;
    }
    return nullptr;
}

HWND FindBelow(HWND parent, int id) {
    return FindBelow(parent, std::string(), id);
}

void SelectRow(HWND combo, int row) {
    if (Ask(combo, CB_SETCURSEL, static_cast<WPARAM>(row)) != row)
        throw std::runtime_error("no row " + std::to_string(row));
    const auto id = static_cast<WORD>(::GetDlgCtrlID(combo));
    Ask(::GetParent(combo), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
}

}  // namespace corvex::test
