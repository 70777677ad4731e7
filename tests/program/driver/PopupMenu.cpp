#include "tests/program/driver/PopupMenu.h"

#include <stdexcept>
#include <vector>

#include "tests/program/driver/Keyboard.h"
#include "tests/program/driver/Mouse.h"
#include "tests/program/driver/WindowFinder.h"
#include "tests/support/Eventually.h"

namespace corvex::test {

namespace {

constexpr char kMenuClass[] = "#32768";

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    return process;
}

bool PressAll(HWND mainWindow, const std::vector<WORD>& keys) {
    for (const WORD key : keys) {
        if (!PressKey(mainWindow, key)) return false;
    }
    const DWORD process = ProcessOf(mainWindow);
    return Eventually([&] { return FindTopWindow(process, kMenuClass) == nullptr; });
}

}  // namespace

HWND OpenPopup(HWND window) {
    RECT place{};
    const auto isSeen = [&] {
        ::GetWindowRect(window, &place);
        return ::WindowFromPoint({(place.left + place.right) / 2, (place.top + place.bottom) / 2}) == window;
    };
    if (!Eventually(isSeen)) throw std::runtime_error("the gauge is not to be seen");
    ClickRight({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    HWND popup = nullptr;
    const DWORD process = ProcessOf(window);
    if (!Eventually([&] { return (popup = FindTopWindow(process, kMenuClass)) != nullptr; }))
        throw std::runtime_error("no menu comes");
    return popup;
}

bool ChooseRow(HWND mainWindow, int submenu, int row) {
    std::vector<WORD> keys(static_cast<std::size_t>(submenu) + 1, VK_DOWN);
    keys.push_back(VK_RIGHT);
    keys.insert(keys.end(), static_cast<std::size_t>(row), VK_DOWN);
    keys.push_back(VK_RETURN);
    return PressAll(mainWindow, keys);
}

bool LeaveMenu(HWND mainWindow) {
    return PressAll(mainWindow, {VK_DOWN, VK_ESCAPE, VK_ESCAPE});
}

}  // namespace corvex::test
