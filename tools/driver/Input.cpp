#include "tools/driver/Input.h"

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

// Positions are told in 65536ths of the screen.
LONG Share(LONG position, int metric) {
    return static_cast<LONG>((65536LL * position + 32768) / ::GetSystemMetrics(metric));
}

INPUT MouseEvent(POINT point, DWORD what) {
    INPUT event = {};
    event.type = INPUT_MOUSE;
    event.mi.dx = Share(point.x, SM_CXSCREEN);
    event.mi.dy = Share(point.y, SM_CYSCREEN);
    event.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | what;
    return event;
}

bool Give(std::vector<INPUT> events) {
    const auto count = static_cast<UINT>(events.size());
    return ::SendInput(count, events.data(), sizeof(INPUT)) == count;
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
    return Give(events);
}

bool DragMouse(POINT from, POINT to) {
    const POINT middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
    return Give({MouseEvent(from, 0), MouseEvent(from, MOUSEEVENTF_LEFTDOWN), MouseEvent(middle, 0), MouseEvent(to, 0),
                 MouseEvent(to, MOUSEEVENTF_LEFTUP)});
}

bool ClickRight(POINT place) {
    return Give(
        {MouseEvent(place, 0), MouseEvent(place, MOUSEEVENTF_RIGHTDOWN), MouseEvent(place, MOUSEEVENTF_RIGHTUP)});
}

}  // namespace corvex::test
