#include "tests/program/driver/Keyboard.h"

#include <vector>

#include "tests/support/Eventually.h"

namespace corvex::test {

namespace {

INPUT KeyEvent(WORD virtualKey, DWORD flags) {
    INPUT event = {};
    event.type = INPUT_KEYBOARD;
    event.ki.wVk = virtualKey;
    event.ki.wScan = static_cast<WORD>(::MapVirtualKeyA(virtualKey, MAPVK_VK_TO_VSC));
    event.ki.dwFlags = flags;
    return event;
}

bool HasTheKeyboard(HWND window) {
    if (::GetForegroundWindow() == window) return true;
    ::SetForegroundWindow(window);
    return ::GetForegroundWindow() == window;
}

}  // namespace

bool PressKey(HWND window, WORD virtualKey, unsigned modifiers) {
    if (!Eventually([&] { return HasTheKeyboard(window); })) return false;
    std::vector<WORD> held;
    if ((modifiers & kCtrl) != 0) held.push_back(VK_CONTROL);
    if ((modifiers & kAlt) != 0) held.push_back(VK_MENU);
    if ((modifiers & kShift) != 0) held.push_back(VK_SHIFT);
    std::vector<INPUT> events;
    for (const WORD key : held)
        events.push_back(KeyEvent(key, 0));
    events.push_back(KeyEvent(virtualKey, 0));
    events.push_back(KeyEvent(virtualKey, KEYEVENTF_KEYUP));
    for (auto key = held.rbegin(); key != held.rend(); ++key)
        events.push_back(KeyEvent(*key, KEYEVENTF_KEYUP));
    const auto count = static_cast<UINT>(events.size());
    return ::SendInput(count, events.data(), sizeof(INPUT)) == count;
}

}  // namespace corvex::test
