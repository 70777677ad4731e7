#include "controls/splash/SplashPaint.h"

namespace corvex {

namespace {

OwnedFont MakeOwnFont() {
    return OwnedFont(::CreateFontA(13, 0, 0, 0, FW_SEMIBOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                   CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial"));
}

// The rectangle told is where a text begins: measured, it grows or shrinks to what the text needs.
void DrawItem(HDC dc, const SplashText& item) {
    const OwnedFont own = item.font ? OwnedFont() : MakeOwnFont();
    const SelectGuard font(dc, item.font ? item.font.Get() : own.Get());
    std::string text = item.text;
    RECT place = item.rectangle;
    ::DrawTextExA(dc, text.data(), -1, &place, DT_NOPREFIX | DT_CALCRECT, nullptr);
    ::SetTextColor(dc, item.colour);
    ::SetBkMode(dc, TRANSPARENT);
    ::DrawTextExA(dc, text.data(), -1, &place, DT_NOPREFIX, nullptr);
}

}  // namespace

void PaintSplashTexts(HDC dc, const SplashTexts& texts) {
    for (const SplashText& item : texts.Items())
        DrawItem(dc, item);
}

}  // namespace corvex
