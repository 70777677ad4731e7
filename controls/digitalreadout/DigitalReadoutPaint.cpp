#include "controls/digitalreadout/DigitalReadoutPaint.h"

#include <cstring>

#include "controls/gauge/GaugeFont.h"
#include "controls/gauge/LogicalSquare.h"

namespace corvex {

namespace {

constexpr int kSide = 100, kCentre = kSide / 2;
constexpr int kTitleTop = 6, kUnitsBottom = 90;

// Where a line begins, by the height of its text.
using TopOf = int (*)(int height);

void DrawLine(HDC dc, const char* text, int fontHeight, COLORREF colour, TopOf top) {
    const OwnedFont font = MakeGaugeFont(fontHeight);
    const SelectGuard selected(dc, font.Get());
    ::SetTextColor(dc, colour);
    const int length = static_cast<int>(std::strlen(text));
    SIZE size{};
    ::GetTextExtentPoint32A(dc, text, length, &size);
    ::TextOutA(dc, kCentre, top(size.cy), text, length);
}

void FillGround(HDC dc, const RECT& client, COLORREF colour) {
    const OwnedBrush brush(::CreateSolidBrush(colour));
    // A unit is never smaller than a pixel, so the client's pixels taken as units cover it.
    ::FillRect(dc, &client, brush.Get());
}

void DrawFrame(HDC dc, COLORREF colour) {
    const OwnedPen pen(::CreatePen(PS_SOLID, 1, colour));
    const SelectGuard line(dc, pen.Get());
    const SelectGuard hollow(dc, ::GetStockObject(NULL_BRUSH));
    ::Rectangle(dc, 0, 0, kSide, kSide);
}

}  // namespace

void PaintDigitalReadout(HDC dc, const RECT& client, const DigitalReadoutModel& model) {
    const LogicalSquare square(dc, client, kSide, false);
    FillGround(dc, client, model.Colour(kReadoutBackground));
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextAlign(dc, TA_CENTER | TA_TOP);
    DrawLine(dc, model.Text(), model.DigitsHeight(), model.ColourInForce(),
             [](int height) { return kCentre - height / 2; });
    DrawLine(dc, model.Title(), DigitalReadoutModel::kTitleHeight, model.Colour(kReadoutTitleColour),
             [](int) { return kTitleTop; });
    DrawLine(dc, model.Units(), DigitalReadoutModel::kUnitsHeight, model.Colour(kReadoutUnitsColour),
             [](int height) { return kUnitsBottom - height; });
    if (model.HasFrame()) DrawFrame(dc, model.Colour(kReadoutFrameColour));
}

}  // namespace corvex
