// Draws a scope: the frame once for each layout, the trace stroke by stroke, both onto layers of their own.
#pragma once

#include <vector>

#include "controls/scope/ScopeModel.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

// Made once for each window.
class ScopeFonts {
public:
    ScopeFonts();
    HFONT Label() const { return label_.Get(); }
    HFONT TurnedLabel() const { return turned_.Get(); }
    HFONT Message() const { return message_.Get(); }

private:
    const OwnedFont label_, turned_, message_;
};

// The whole client.
void PaintScopeFrame(HDC dc, const ScopeFrame& frame, const ScopeModel& scope, const ScopeFonts& fonts);
// On the frame, in a corner of the plot.
void PaintScopeMessage(HDC dc, const ScopeModel& scope, const ScopeFonts& fonts);

// Of one layer that holds nothing but the trace. Ends with the pen and the brush that it selects and lets nothing out
// of the plot.
class ScopeTrace {
public:
    // Keeps the context and the plot for as long as it lives; the brush is not kept.
    ScopeTrace(HDC dc, const ScopeFrame& frame, HBRUSH ground);
    ~ScopeTrace();
    ScopeTrace(const ScopeTrace&) = delete;
    ScopeTrace& operator=(const ScopeTrace&) = delete;

    void Draw(const ScopeStroke& stroke, HBRUSH ground, HPEN pen) const;
    void Draw(const std::vector<ScopePoint>& line, HPEN pen) const;

private:
    const HDC dc_;
    const ScopeArea plot_;
    const int saved_;
};

}  // namespace corvex
