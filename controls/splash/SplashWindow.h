// The window of a splash screen: shows a bitmap of the program's resources with the texts over it.
#pragma once

#include "controls/splash/SplashTexts.h"
#include "controls/window/ControlWindow.h"

namespace corvex {

// What the window and the object that owns it share. The object keeps it alive for as long as the window lives.
struct SplashShared {
    HINSTANCE instance = nullptr;  // whose resources hold the bitmap
    int bitmapId = 0;
    std::uint32_t options = 0;
    bool visible = false;
    HWND window = nullptr;  // null again when the window goes, be it with its parent
    SplashTexts texts;
};

class SplashWindow final : public ControlWindow {
public:
    // The parameter of CreateWindowExA is a SplashShared.
    SplashWindow(HWND window, void* shared);

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT TakeBitmapSize();
    void Paint();

    SplashShared& shared_;
};

// With its timer, if one runs.
void HideSplash(SplashShared& shared);

inline constexpr UINT_PTR kSplashTimer = 0;

}  // namespace corvex
