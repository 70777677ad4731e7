#include "tests/program/driver/PopupMenu.h"

#include <stdexcept>
#include <vector>

#include "tests/support/Eventually.h"
#include "tools/driver/Input.h"
#include "tools/driver/WindowFinder.h"

namespace corvex::test {

namespace {

bool IsMenuOpen(HWND window) {
    constexpr char kMenuClass[] = "#32768";
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    return FindTopWindow(process, kMenuClass) != nullptr;
}

// And then the row is taken.
bool Press(HWND mainWindow, std::vector<WORD> keys) {
    keys.push_back(VK_RETURN);
    for (const WORD key : keys) {
        if (!PressKey(mainWindow, key)) return false;
    }
    return Eventually([&] { return !IsMenuOpen(mainWindow); });
}

}  // namespace

void OpenPopup(HWND window) {
    POINT middle{};
    const auto isSeen = [&] {
        RECT place{};
        ::GetWindowRect(window, &place);
        middle = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
        return ::WindowFromPoint(middle) == window;
    };
    if (!Eventually(isSeen)) throw std::runtime_error("the gauge is not to be seen");
    ClickRight(middle);
    if (!Eventually([&] { return IsMenuOpen(window); })) throw std::runtime_error("no menu comes");
}

bool ChooseRow(HWND mainWindow, int submenu, int row) {
    std::vector<WORD> keys(static_cast<std::size_t>(submenu) + 1, VK_DOWN);
    keys.push_back(VK_RIGHT);
    keys.insert(keys.end(), static_cast<std::size_t>(row), VK_DOWN);
    return Press(mainWindow, keys);
}

bool ChooseRow(HWND mainWindow, int row) {
    return Press(mainWindow, std::vector<WORD>(static_cast<std::size_t>(row) + 1, VK_DOWN));
}

}  // namespace corvex::test
