#include "session/window/SavedPlace.h"

namespace corvex {

namespace {

constexpr int kSmallestSide = 60, kLargestSide = 32767;

RECT PlaceOf(const AppSettings& settings) {
    const auto far = [](std::int32_t from, std::int32_t size) { return from + size; };
    return {settings.winposx, settings.winposy, far(settings.winposx, settings.winsizex),
            far(settings.winposy, settings.winsizey)};
}

bool IsSize(std::int32_t size) {
    return size >= kSmallestSide && size <= kLargestSide;
}

bool IsPosition(std::int32_t position) {
    return position >= -kLargestSide && position <= kLargestSide;
}

}  // namespace

RECT VisiblePlace(const AppSettings& settings) {
    const bool sane = IsSize(settings.winsizex) && IsSize(settings.winsizey) && IsPosition(settings.winposx) &&
                      IsPosition(settings.winposy);
    if (sane) {
        const RECT place = PlaceOf(settings);
        if (::MonitorFromRect(&place, MONITOR_DEFAULTTONULL) != nullptr) return place;
    }
    AppSettings defaults;
    SetDefaults(&defaults);
    return PlaceOf(defaults);
}

RECT ScreenPlace(RECT place, const RECT& monitor, const RECT& workArea) {
    ::OffsetRect(&place, workArea.left - monitor.left, workArea.top - monitor.top);
    return place;
}

void KeepPlace(HWND window, AppSettings* settings) {
    RECT place{};
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (::IsIconic(window) != 0 && ::GetWindowPlacement(window, &placement) != 0) {
        MONITORINFO monitor{};
        monitor.cbSize = sizeof monitor;
        place = placement.rcNormalPosition;
        if (::GetMonitorInfoA(::MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &monitor) != 0)
            place = ScreenPlace(place, monitor.rcMonitor, monitor.rcWork);
    } else {
        ::GetWindowRect(window, &place);
    }
    settings->winposx = place.left;
    settings->winposy = place.top;
    settings->winsizex = place.right - place.left;
    settings->winsizey = place.bottom - place.top;
}

}  // namespace corvex
