#include "controls/splash/SplashScreen.h"

#include <utility>

#include "controls/splash/SplashWindow.h"

namespace corvex {

struct SplashScreen::State : SplashShared {};

SplashScreen::SplashScreen() : state_(std::make_unique<State>()) {}

// Odd and wanted: the class was registered under another name, so it stays registered, and the next splash finds it.
SplashScreen::~SplashScreen() {
    if (state_->window != nullptr) ::DestroyWindow(state_->window);
    ::UnregisterClassA("QZSPLASH", state_->instance);
}

bool SplashScreen::create(HWND parent, HINSTANCE instance, int bitmapId, std::uint32_t options, std::uint32_t flags) {
    if (state_->window != nullptr) return false;
    state_->instance = instance;
    state_->bitmapId = bitmapId;
    state_->options = options;
    ControlClass windowClass{};
    windowClass.name = kSplashClass;
    if (!RegisterControl<SplashWindow>(instance, windowClass)) return false;
    const DWORD extended = (flags & kSplashTopmost) != 0 ? WS_EX_TOPMOST : 0;
    SplashShared* const shared = state_.get();
    return ::CreateWindowExA(extended, kSplashClass, "", WS_POPUP, 0, 0, 0, 0, parent, nullptr, instance, shared) !=
           nullptr;
}

void SplashScreen::show(std::uint32_t milliseconds) {
    const HWND window = state_->window;
    if (window == nullptr) return;
    RECT place{};
    ::GetWindowRect(window, &place);
    const int left = (::GetSystemMetrics(SM_CXSCREEN) - static_cast<int>(place.right - place.left)) / 2;
    const int top = (::GetSystemMetrics(SM_CYSCREEN) - static_cast<int>(place.bottom - place.top)) / 2;
    ::SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ::ShowWindow(window, SW_SHOW);
    ::UpdateWindow(window);
    ::KillTimer(window, kSplashTimer);
    if (milliseconds != 0) ::SetTimer(window, kSplashTimer, milliseconds, nullptr);
    state_->visible = true;
}

void SplashScreen::hide() {
    if (state_->window != nullptr) HideSplash(*state_);
}

void SplashScreen::setText(const char* text, const RECT& rectangle, int itemId, OwnedFont font, std::uint32_t colour) {
    SplashText item;
    item.itemId = itemId;
    item.text = text == nullptr ? "" : text;
    item.rectangle = rectangle;
    item.font = std::move(font);
    item.colour = colour;
    state_->texts.Set(std::move(item));
    if (state_->window != nullptr) ::RedrawWindow(state_->window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

bool SplashScreen::IsVisible() const {
    return state_->visible;
}

HWND SplashScreen::Window() const {
    return state_->window;
}

}  // namespace corvex
