#include "controls/richstatic/AdoptedFont.h"

namespace corvex {

namespace {

OwnedFont MakeOwnFont() {
    LOGFONTA font{};
    ::GetObjectA(::GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    font.lfWeight = 500;
    return OwnedFont(::CreateFontIndirectA(&font));
}

}  // namespace

AdoptedFont::AdoptedFont() : own_(MakeOwnFont()) {}

// WM_GETFONT gives either font away, and it may come back.
void AdoptedFont::Adopt(HFONT font) {
    if (font != nullptr && font == adopted_.Get()) return;
    adopted_ = font == own_.Get() ? OwnedFont() : OwnedFont(font);
}

}  // namespace corvex
