#include "controls/scope/ScopePaint.h"

#include <algorithm>

#include "controls/gauge/GaugeFont.h"

namespace corvex {

namespace {

constexpr int kTurned = 900;  // tenths of a degree
constexpr int kMessageRight = 30, kMessageTop = 6, kTextHeight = 14;
constexpr COLORREF kMessageColour = 0x0000FF;

RECT AsRect(const ScopeArea& area) {
    return {area.left, area.top, area.right, area.bottom};
}

UINT AlignmentOf(ScopeTextAlign align) {
    switch (align) {
        case ScopeTextAlign::kBelowRight:
            return TA_RIGHT | TA_TOP;
        case ScopeTextAlign::kBelowCentred:
        case ScopeTextAlign::kTurned:
            return TA_CENTER | TA_TOP;
        case ScopeTextAlign::kBaselineRight:
            return TA_RIGHT | TA_BASELINE;
        case ScopeTextAlign::kBelowLeft:
            break;
    }
    return TA_LEFT | TA_TOP;
}

bool IsLonger(HDC dc, const ScopeLabel& label, int room) {
    SIZE size{};
    ::GetTextExtentPoint32A(dc, label.text.data(), static_cast<int>(label.text.size()), &size);
    return size.cx > room;
}

// What runs upward is left out where it would run into the numbers above and below it.
void DrawLabel(HDC dc, const ScopeLabel& label, const ScopeFonts& fonts, int height) {
    const bool isTurned = label.align == ScopeTextAlign::kTurned;
    {
        const SelectGuard level(dc, fonts.Label());
        if (isTurned && IsLonger(dc, label, height - 2 * kTextHeight)) return;
    }
    const SelectGuard font(dc, isTurned ? fonts.TurnedLabel() : fonts.Label());
    ::SetTextAlign(dc, AlignmentOf(label.align));
    ::TextOutA(dc, label.place.x, label.place.y, label.text.data(), static_cast<int>(label.text.size()));
}

void DrawLine(HDC dc, ScopePoint from, ScopePoint to) {
    ::MoveToEx(dc, from.x, from.y, nullptr);
    ::LineTo(dc, to.x, to.y);
}

// The upper and the left line are on the plot's edges, the others beyond them.
void DrawOutline(HDC dc, const ScopeArea& plot) {
    ::MoveToEx(dc, plot.left, plot.top, nullptr);
    ::LineTo(dc, plot.right + 1, plot.top);
    ::LineTo(dc, plot.right + 1, plot.bottom + 1);
    ::LineTo(dc, plot.left, plot.bottom + 1);
    ::LineTo(dc, plot.left, plot.top);
}

}  // namespace

ScopeFonts::ScopeFonts()
    : label_(MakeGaugeFont(14, FW_LIGHT)), turned_(MakeGaugeFont(14, FW_LIGHT, kTurned)), message_(MakeGaugeFont(14)) {}

void PaintScopeFrame(HDC dc, const ScopeFrame& frame, const ScopeModel& scope, const ScopeFonts& fonts) {
    const int saved = ::SaveDC(dc);
    const OwnedBrush ground(::CreateSolidBrush(scope.backColour));
    const OwnedPen line(::CreatePen(PS_SOLID, 0, scope.textColour));
    const RECT client = AsRect(frame.client);
    ::FillRect(dc, &client, ground.Get());
    {
        const SelectGuard pen(dc, line.Get());
        DrawOutline(dc, frame.plot);
        for (const int y : frame.midlines)
            DrawLine(dc, {frame.plot.left, y}, {std::max(frame.plot.right, frame.plot.left), y});
    }
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, scope.textColour);
    for (const ScopeLabel& label : frame.labels)
        DrawLabel(dc, label, fonts, frame.plot.Height());
    ::RestoreDC(dc, saved);
}

void PaintScopeMessage(HDC dc, const ScopeModel& scope, const ScopeFonts& fonts) {
    if (scope.message.empty()) return;
    const SelectGuard font(dc, fonts.Message());
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, kMessageColour);
    ::SetTextAlign(dc, TA_RIGHT | TA_TOP);
    ::TextOutA(dc, scope.Plot().right - kMessageRight, scope.Plot().top + kMessageTop, scope.message.data(),
               static_cast<int>(scope.message.size()));
}

ScopeTrace::ScopeTrace(HDC dc, const ScopeFrame& frame, HBRUSH ground)
    : dc_(dc), plot_(frame.plot), saved_(::SaveDC(dc)) {
    const RECT client = AsRect(frame.client);
    ::FillRect(dc, &client, ground);
    ::IntersectClipRect(dc, plot_.left, plot_.top, plot_.right, plot_.bottom + 1);
}

ScopeTrace::~ScopeTrace() {
    ::RestoreDC(dc_, saved_);
}

void ScopeTrace::Draw(const ScopeStroke& stroke, HBRUSH ground, HPEN pen) const {
    // A step wider than the plot leaves nothing to copy, and a strip that covers all of it.
    ::BitBlt(dc_, plot_.left, plot_.top + 1, plot_.Width() - stroke.shift, plot_.Height() - 1, dc_,
             plot_.left + stroke.shift, plot_.top + 1, SRCCOPY);
    const RECT strip{stroke.stripLeft, plot_.top, plot_.right, plot_.bottom + 1};
    ::FillRect(dc_, &strip, ground);
    const SelectGuard selected(dc_, pen);
    DrawLine(dc_, stroke.from, stroke.to);
}

void ScopeTrace::Draw(const std::vector<ScopePoint>& line, HPEN pen) const {
    if (line.empty()) return;
    const SelectGuard selected(dc_, pen);
    ::MoveToEx(dc_, line.front().x, line.front().y, nullptr);
    for (const ScopePoint& point : line)
        ::LineTo(dc_, point.x, point.y);
}

}  // namespace corvex
