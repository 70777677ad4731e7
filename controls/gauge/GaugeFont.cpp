#include "controls/gauge/GaugeFont.h"

#include <cstring>

namespace corvex {

OwnedFont MakeGaugeFont(int height) {
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWeight = FW_SEMIBOLD;
    font.lfQuality = PROOF_QUALITY;
    font.lfPitchAndFamily = FF_MODERN | VARIABLE_PITCH;
    std::strcpy(font.lfFaceName, "Arial");
    return OwnedFont(::CreateFontIndirectA(&font));
}

}  // namespace corvex
