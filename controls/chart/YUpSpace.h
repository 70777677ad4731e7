// The logical space of the charts with points: one unit a pixel, counted upward from the client's lower edge.
#pragma once

#include "controls/chart/ChartTerms.h"
#include "platform/WindowsApi.h"

namespace corvex {

// Maps the context when it is built, and puts back all of the context's state, mapping and selected objects, when it
// goes. What is selected meanwhile must outlive the selection, not this.
class YUpSpace {
public:
    // Of a client that is that many pixels high.
    YUpSpace(HDC dc, int height);
    ~YUpSpace();
    YUpSpace(const YUpSpace&) = delete;
    YUpSpace& operator=(const YUpSpace&) = delete;

private:
    HDC dc_;
    int saved_;
};

// `text` beside its place, the upper edge level with it.
void DrawYUpText(HDC dc, YUpPoint at, TextSide side, std::string_view text);
// `text` with its middle there, the lower edge level with it.
void DrawYUpTextAbove(HDC dc, YUpPoint at, std::string_view text);

// Texts of one line in the font of a context, which outlives this and keeps its mapping.
class YUpTextMeasure final : public ITickTextMeasure {
public:
    YUpTextMeasure(HDC dc, HFONT font) : dc_(dc), font_(font) {}
    YUpSize Measure(std::string_view text) const override;

private:
    HDC dc_;
    HFONT font_;
};

}  // namespace corvex
