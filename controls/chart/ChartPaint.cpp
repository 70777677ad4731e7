#include "controls/chart/ChartPaint.h"

#include <algorithm>

#include "controls/chart/YUpSpace.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

namespace {

constexpr char kEllipsis[] = "...";

// As much of a text as the client is wide.
std::string Fitting(HDC dc, const std::string& text, int width) {
    SIZE size{};
    ::GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    if (size.cx <= width) return text;
    SIZE dots{};
    ::GetTextExtentPoint32A(dc, kEllipsis, static_cast<int>(sizeof kEllipsis - 1), &dots);
    int fits = 0;
    ::GetTextExtentExPointA(dc, text.c_str(), static_cast<int>(text.size()),
                            std::max(0, width - static_cast<int>(dots.cx)), &fits, nullptr, &size);
    return text.substr(0, static_cast<std::size_t>(fits)) + kEllipsis;
}

}  // namespace

void PaintChartGround(HDC dc, YUpSize client, COLORREF colour) {
    const OwnedBrush ground(::CreateSolidBrush(colour));
    const RECT area{0, 0, client.width, client.height};
    ::FillRect(dc, &area, ground.Get());
}

void PaintChartTitle(HDC dc, YUpSize client, int drop, HFONT font, COLORREF colour, const std::string& text) {
    const SelectGuard selected(dc, font);
    ::SetTextColor(dc, colour);
    DrawYUpText(dc, {client.width / 2, client.height - drop}, TextSide::kCentred, Fitting(dc, text, client.width));
}

void PaintChartBand(HDC dc, const ChartHand& hand, int clientHeight) {
    if (!hand.band) return;
    const YUpSpace space(dc, clientHeight);
    ::SetROP2(dc, R2_NOT);
    ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
    ::Rectangle(dc, hand.band->corner.x, hand.band->corner.y, hand.band->opposite.x, hand.band->opposite.y);
}

}  // namespace corvex
