// What a paint function draws, with all that is in force when it draws it.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "platform/WindowsApi.h"

namespace corvex {

// One line per figure drawn on a metafile, in logical units, right and bottom outside, colours 0xBBGGRR:
//   "mapping anisotropic window 180,180 viewport 300,300"       when the viewport has been set
//   "fill 0,0,300,300 brush ffffff"
//   "ellipse 2,2,178,178 pen 0 1 000000 brush f0f0f0"           style, width and colour of the pen; a null brush is
//   "none" "rectangle 0,0,100,100 pen 0 1 000000 brush ffffff" "arc 2,2,178,178 from 3,4 to 5,6 ccw pen 0 2 000000"
//   "polygon 1,2 3,4 5,6 pen 0 1 000000 brush ffffff"
//   "line 1,2 to 3,4 pen 0 1 000000"
//   "text 90,72 align 14 font Arial 12 600 2 32 colour 000000 transparent: Title"
// The black stock pen has width 0. The font's numbers are height, weight, quality and, in hexadecimal, pitch and
// family; in place of "transparent" stands "on" with the background colour. What is clipped begins with "clip
// 5,0,10,5 ". The test font is selected at the beginning.
using Figures = std::vector<std::string>;
Figures FiguresOf(const std::function<void(HDC)>& paint);

// The lines of one kind, "text" for instance.
Figures FiguresOfKind(const Figures& figures, const std::string& kind);
// The line of a text that is drawn in the test font in the middle of such an area; the height should be odd, as that of
// the font is.
std::string CentredText(const std::string& text, int width, int height, COLORREF colour);

// As printf does.
template <class... Values>
std::string Printed(const char* format, Values... values) {
    char text[200];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

}  // namespace corvex
