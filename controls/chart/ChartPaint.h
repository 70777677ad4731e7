// What every chart with points draws alike: its ground, its titles, the rubber band.
#pragma once

#include <string>

#include "controls/chart/ChartHand.h"
#include "platform/WindowsApi.h"

namespace corvex {

// In the client's own space.
void PaintChartGround(HDC dc, YUpSize client, COLORREF colour);
// In the middle, so many pixels below the client's upper edge, and cut off where the client ends. In the y-up space.
void PaintChartTitle(HDC dc, YUpSize client, int drop, HFONT font, COLORREF colour, const std::string& text);
// In the client's own space. The second time it takes away what the first has drawn.
void PaintChartBand(HDC dc, const ChartHand& hand, int clientHeight);

}  // namespace corvex
