// A bitmap window with texts over it, shown while the program starts.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "controls/window/GdiObjects.h"

namespace corvex {

inline constexpr char kSplashClass[] = "QZSPLASHT";

// Bits of `flags`.
inline constexpr std::uint32_t kSplashTopmost = 0x2;

// The object owns its window, the other way round than with the controls. On the thread that created it; it must go
// before that thread ends.
class SplashScreen {
public:
    SplashScreen();
    ~SplashScreen();
    SplashScreen(const SplashScreen&) = delete;
    SplashScreen& operator=(const SplashScreen&) = delete;

    // A hidden pop-up of the bitmap's size. False when there is no such bitmap or no window. `options` is kept and read
    // by nothing.
    bool create(HWND parent, HINSTANCE instance, int bitmapId, std::uint32_t options, std::uint32_t flags);
    // In the middle of the screen, for that time, or until hide when it is 0.
    void show(std::uint32_t milliseconds);
    void hide();
    // Changes the text with this id or adds it, and repaints at once. The text is cut at 254 characters. A null font
    // means the splash's own.
    void setText(const char* text, const RECT& rectangle, int itemId, OwnedFont font, std::uint32_t colour);

    bool IsVisible() const;
    HWND Window() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace corvex
