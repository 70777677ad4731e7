#include "controls/statusgauge/StatusGaugePaint.h"

#include "controls/gauge/GaugeFont.h"
#include "controls/gauge/LogicalSquare.h"

namespace corvex {

namespace {

constexpr int kSide = 100, kCentre = kSide / 2;
constexpr int kTitleTop = 6, kWordTop = 50;
constexpr int kTitleHeight = 10, kWordHeight = 24;

void DrawLine(HDC dc, std::string_view text, int fontHeight, int top) {
    const OwnedFont font = MakeGaugeFont(fontHeight);
    const SelectGuard selected(dc, font.Get());
    ::TextOutA(dc, kCentre, top, text.data(), static_cast<int>(text.size()));
}

void DrawTitle(HDC dc, const StatusGaugeModel& model) {
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, model.titleColour);
    DrawLine(dc, model.title.Drawn(), kTitleHeight, kTitleTop);
}

void DrawWord(HDC dc, const StatusGaugeModel& model) {
    ::SetBkMode(dc, OPAQUE);
    ::SetTextColor(dc, model.WordColour());
    ::SetBkColor(dc, model.WordFill());
    DrawLine(dc, model.Word(), kWordHeight, kWordTop);
}

}  // namespace

void PaintStatusGauge(HDC dc, const RECT& client, const StatusGaugeModel& model) {
    // What a round tile leaves free.
    if (model.Round()) ::FillRect(dc, &client, ::GetSysColorBrush(COLOR_WINDOW));
    const LogicalSquare square(dc, client, kSide, model.Round());
    ::Rectangle(dc, 0, 0, kSide, kSide);
    ::SetTextAlign(dc, TA_CENTER | TA_TOP);
    if (model.title.Present()) DrawTitle(dc, model);
    DrawWord(dc, model);
}

}  // namespace corvex
