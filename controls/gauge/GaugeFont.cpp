#include "controls/gauge/GaugeFont.h"

#include <cstring>

namespace corvex {

OwnedFont MakeGaugeFont(int height, int weight, int escapement) {
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfEscapement = font.lfOrientation = escapement;
    font.lfWeight = weight;
    font.lfQuality = PROOF_QUALITY;
    font.lfPitchAndFamily = FF_MODERN | VARIABLE_PITCH;
    std::strcpy(font.lfFaceName, "Arial");
    return OwnedFont(::CreateFontIndirectA(&font));
}

}  // namespace corvex
