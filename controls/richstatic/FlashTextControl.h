// The window of a FlashTextModel: messages of text and font, the timer of the flash, painting off screen.
#pragma once

#include <cstdint>

#include "controls/richstatic/AdoptedFont.h"
#include "controls/richstatic/FlashTextModel.h"
#include "controls/window/ControlWindow.h"
#include "controls/window/OffscreenPaint.h"

namespace corvex {

inline constexpr UINT_PTR kFlashTimer = 1025;

class FlashTextControl : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

    // Text colour, back colour and text, in this order. Any thread.
    static void SendAll(HWND window, UINT textColourMessage, UINT backColourMessage, const char* text,
                        std::uint32_t textColour, std::uint32_t backColour);
    // Begins a flash, unless one is on. The window's thread.
    void Flash(const char* text, std::uint32_t textColour, std::uint32_t backColour, std::uint32_t milliseconds);

protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    virtual FlashTextModel& Label() = 0;
    // All of the area, with the font in use selected.
    virtual void Paint(HDC dc, const RECT& area) = 0;

    // The old colour, -1 for none.
    LRESULT ChangeTextColour(LPARAM colour);
    LRESULT ChangeBackColour(LPARAM colour);
    void Redraw();          // at once
    void RedrawWithNext();  // with what comes next, so that three changes are painted once

private:
    LRESULT SetText(const char* text);
    LRESULT GetText(char* buffer, std::size_t capacity);
    void PaintOffscreen();
    void EndFlash();

    AdoptedFont font_;
    OffscreenBitmap bitmap_;
};

}  // namespace corvex
