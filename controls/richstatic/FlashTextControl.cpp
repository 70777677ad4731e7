#include "controls/richstatic/FlashTextControl.h"

namespace corvex {

namespace {

const char* OrEmpty(const char* text) {
    return text == nullptr ? "" : text;
}

std::uint32_t ColourIn(LPARAM word) {
    return static_cast<std::uint32_t>(word);
}

// Keeps its sign, so that "none" reads -1 in both widths.
LRESULT ColourOut(std::uint32_t colour) {
    return static_cast<std::int32_t>(colour);
}

}  // namespace

void FlashTextControl::SendAll(HWND window, UINT textColourMessage, UINT backColourMessage, const char* text,
                               std::uint32_t textColour, std::uint32_t backColour) {
    ::SendMessageA(window, textColourMessage, 0, static_cast<LPARAM>(textColour));
    ::SendMessageA(window, backColourMessage, 0, static_cast<LPARAM>(backColour));
    ::SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(OrEmpty(text)));
}

LRESULT FlashTextControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
            Label().SetText(OrEmpty(reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpszName));
            return Default(message, wParam, lParam);
        case WM_SETTEXT:
            return SetText(OrEmpty(reinterpret_cast<const char*>(lParam)));
        case WM_GETTEXT:
            return GetText(reinterpret_cast<char*>(lParam), wParam);
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(Label().Length());
        case WM_SETFONT:
            font_.Adopt(reinterpret_cast<HFONT>(wParam));
            RedrawWithNext();
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font_.InUse());
        case WM_TIMER:
            if (wParam != kFlashTimer) return Default(message, wParam, lParam);
            EndFlash();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            PaintOffscreen();
            return 0;
        default:
            return Default(message, wParam, lParam);
    }
}

LRESULT FlashTextControl::ChangeTextColour(LPARAM colour) {
    RedrawWithNext();
    return ColourOut(Label().SetTextColour(ColourIn(colour)));
}

LRESULT FlashTextControl::ChangeBackColour(LPARAM colour) {
    RedrawWithNext();
    return ColourOut(Label().SetBackColour(ColourIn(colour)));
}

void FlashTextControl::Redraw() {
    ::RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void FlashTextControl::RedrawWithNext() {
    ::InvalidateRect(Window(), nullptr, FALSE);
}

LRESULT FlashTextControl::SetText(const char* text) {
    Label().SetText(text);
    if (!Label().Flashing()) Redraw();
    return TRUE;
}

// Callers in this thread who tell no capacity get the whole text, as they count on a buffer that is large enough; for
// a sender from elsewhere the system has provided a buffer of just the capacity told, be it 0.
LRESULT FlashTextControl::GetText(char* buffer, std::size_t capacity) {
    if (buffer == nullptr) return 0;
    if (capacity == 0 && ::InSendMessage() == FALSE) capacity = FlashTextModel::kMaximumLength + 1;
    return static_cast<LRESULT>(Label().CopyText(buffer, capacity));
}

void FlashTextControl::PaintOffscreen() {
    const OffscreenPaint paint(Window(), bitmap_);
    const SelectGuard font(paint.Dc(), font_.InUse());
    Paint(paint.Dc(), paint.Area());
}

// A message that no timer would ever end is not begun.
void FlashTextControl::Flash(const char* text, std::uint32_t textColour, std::uint32_t backColour,
                             std::uint32_t milliseconds) {
    if (Label().Flashing()) return;
    if (::SetTimer(Window(), kFlashTimer, milliseconds, nullptr) == 0) return;
    Label().BeginFlash(OrEmpty(text), textColour, backColour);
    Redraw();
}

void FlashTextControl::EndFlash() {
    ::KillTimer(Window(), kFlashTimer);
    if (Label().EndFlash()) Redraw();
}

}  // namespace corvex
