// The least that a window takes with the same compiler and libraries: what Corvex's start and memory are held against.
#include "platform/WindowsApi.h"

namespace {

void Paint(HWND window) {
    PAINTSTRUCT paint{};
    const HDC dc = ::BeginPaint(window, &paint);
    ::FillRect(dc, &paint.rcPaint, ::GetSysColorBrush(COLOR_BTNFACE));
    ::EndPaint(window, &paint);
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) Paint(window);
    if (message == WM_DESTROY) ::PostQuitMessage(0);
    return message == WM_PAINT ? 0 : ::DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = &Procedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = "BAREWINDOW";
    ::RegisterClassA(&windowClass);
    const HWND window = ::CreateWindowExA(0, "BAREWINDOW", "Bare", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                                          650, 500, nullptr, nullptr, instance, nullptr);
    ::ShowWindow(window, show);
    ::UpdateWindow(window);
    MSG message;
    while (::GetMessageA(&message, nullptr, 0, 0) > 0)
        ::DispatchMessageA(&message);
    return 0;
}
