#pragma once

#include "controls/splash/SplashTexts.h"

namespace corvex {

// Draws the texts over what is there, in the order in which they were added.
void PaintSplashTexts(HDC dc, const SplashTexts& texts);

}  // namespace corvex
