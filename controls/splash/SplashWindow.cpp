#include "controls/splash/SplashWindow.h"

#include "controls/splash/SplashPaint.h"

namespace corvex {

namespace {

OwnedBitmap LoadSplashBitmap(const SplashShared& shared) {
    return OwnedBitmap(::LoadBitmapA(shared.instance, MAKEINTRESOURCEA(shared.bitmapId)));
}

SIZE SizeOf(const OwnedBitmap& bitmap) {
    BITMAP header{};
    ::GetObjectA(bitmap.Get(), sizeof header, &header);
    return {header.bmWidth, header.bmHeight};
}

}  // namespace

void HideSplash(SplashShared& shared) {
    ::KillTimer(shared.window, kSplashTimer);
    ::ShowWindow(shared.window, SW_HIDE);
    shared.visible = false;
}

SplashWindow::SplashWindow(HWND window, void* shared)
    : ControlWindow(window), shared_(*static_cast<SplashShared*>(shared)) {
    shared_.window = window;
}

LRESULT SplashWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return TakeBitmapSize();
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            Paint();
            return 0;
        case WM_TIMER:
            if (wParam != kSplashTimer) return Default(message, wParam, lParam);
            HideSplash(shared_);
            return 0;
        case WM_NCDESTROY:
            shared_.window = nullptr;
            shared_.visible = false;
            return Default(message, wParam, lParam);
        default:
            return Default(message, wParam, lParam);
    }
}

// -1 refuses the window.
LRESULT SplashWindow::TakeBitmapSize() {
    const OwnedBitmap bitmap = LoadSplashBitmap(shared_);
    if (!bitmap) return -1;
    const SIZE size = SizeOf(bitmap);
    ::SetWindowPos(Window(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
    return 0;
}

// The bitmap itself is what is drawn on off screen; it is loaded anew each time, so the texts do not pile up.
void SplashWindow::Paint() {
    PAINTSTRUCT paint{};
    const HDC screen = ::BeginPaint(Window(), &paint);
    {
        const MemoryDc memory(screen);
        const OwnedBitmap bitmap = LoadSplashBitmap(shared_);
        const SelectGuard selected(memory.Get(), bitmap.Get());
        PaintSplashTexts(memory.Get(), shared_.texts);
        const SIZE size = SizeOf(bitmap);
        ::StretchBlt(screen, 0, 0, size.cx, size.cy, memory.Get(), 0, 0, size.cx, size.cy, SRCCOPY);
    }
    ::EndPaint(Window(), &paint);
}

}  // namespace corvex
