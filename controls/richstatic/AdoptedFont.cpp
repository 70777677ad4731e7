#include "controls/richstatic/AdoptedFont.h"

namespace corvex {

namespace {

OwnedFont MakeOwnFont() {
    LOGFONTA words{};
    ::GetObjectA(::GetStockObject(DEFAULT_GUI_FONT), sizeof words, &words);
    words.lfWeight = 500;
    return OwnedFont(::CreateFontIndirectA(&words));
}

}  // namespace

AdoptedFont::AdoptedFont() : own_(MakeOwnFont()) {}

// WM_GETFONT gives either font away, and it may come back.
void AdoptedFont::Adopt(HFONT font) {
    if (font != nullptr && font == adopted_.Get()) return;
    adopted_ = font == own_.Get() ? OwnedFont() : OwnedFont(font);
}

}  // namespace corvex
