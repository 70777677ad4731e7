#include "tests/program/driver/Mouse.h"

#include <array>

namespace corvex::test {

namespace {

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

}  // namespace

bool DragMouse(POINT from, POINT to) {
    const POINT middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
    std::array<INPUT, 5> events{MouseEvent(from, 0), MouseEvent(from, MOUSEEVENTF_LEFTDOWN), MouseEvent(middle, 0),
                                MouseEvent(to, 0), MouseEvent(to, MOUSEEVENTF_LEFTUP)};
    const auto count = static_cast<UINT>(events.size());
    return ::SendInput(count, events.data(), sizeof(INPUT)) == count;
}

bool ClickRight(POINT place) {
    std::array<INPUT, 3> events{MouseEvent(place, 0), MouseEvent(place, MOUSEEVENTF_RIGHTDOWN),
                                MouseEvent(place, MOUSEEVENTF_RIGHTUP)};
    const auto count = static_cast<UINT>(events.size());
    return ::SendInput(count, events.data(), sizeof(INPUT)) == count;
}

}  // namespace corvex::test
