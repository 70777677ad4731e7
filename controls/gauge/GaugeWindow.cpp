#include "controls/gauge/GaugeWindow.h"

namespace corvex {

void RepaintGauge(HWND gauge) {
    ::InvalidateRect(gauge, nullptr, TRUE);
    ::UpdateWindow(gauge);
}

LRESULT ForwardContextMenu(HWND gauge, UINT notificationCode, LPARAM screenPlace) {
    const auto id = static_cast<WORD>(::GetDlgCtrlID(gauge) & 0xFFFF);
    ::SendMessageA(::GetParent(gauge), WM_COMMAND, MAKEWPARAM(id, notificationCode), screenPlace);
    return 0;
}

}  // namespace corvex
