// The words in which a 2-D chart and its page talk: points, style and series flags, colours and notification codes.
#pragma once

#include <cstddef>
#include <cstdint>

#include "controls/chart/ChartTerms.h"

namespace corvex {

// Their order wherever there is one of each.
enum Chart2DAxis : std::size_t { kChart2DX, kChart2DY, kChart2DAxisCount };
inline constexpr Chart2DAxis kChart2DAxes[] = {kChart2DX, kChart2DY};

struct Point2D {
    float x = 0.0F, y = 0.0F;
    std::uint32_t word = 0;   // the page's
    std::uint32_t flags = 0;  // kPointSelected
};
static_assert(sizeof(Point2D) == 16);

constexpr bool IsSelected(const Point2D& point) {
    return (point.flags & kPointSelected) != 0;
}
template <class Point>  // Point2D, or a const one
constexpr auto& AlongAxis(Point& point, Chart2DAxis axis) {
    return axis == kChart2DX ? point.x : point.y;
}

enum Chart2DStyle : std::uint32_t {
    kChart2DOffscreen = kChartOffscreen,
    kChart2DXTicks = 0x02,  // made by the chart
    kChart2DYTicks = 0x04,
    kChart2DSubtitle = 0x08,
    kChart2DXFollows = 0x10,  // the range follows the data
    kChart2DYFollows = 0x20,
    kChart2DDefaultStyle = 0x07,
    kChart2DAnyTicks = 0x06,
    kChart2DAnyFollows = 0x30,
};

enum Series2DFlag : std::uint32_t {
    kSeriesDragX = 0x01,
    kSeriesDragY = 0x02,
    kSeriesPick = 0x04,  // a point by a click
    kSeriesBand = 0x08,  // points by the rubber band
    kSeriesNoMarkers = 0x10,
    kSeriesFromOrigin = 0x20,  // its line starts there, not at its first point
    kSeriesStored = 0x40,
    kSeriesHidden = 0x80,
    kSeriesDefaultFlags = 0x4B,
    kSeriesAnyDrag = 0x03,
    kSeriesAnyPick = 0x0C,
};

// Colours are 0x00BBGGRR. Those of a series:
enum Series2DColour : std::uint32_t {
    kSeriesSelectedColour = 12,
    kSeriesPointColour = 13,
    kSeriesLineColour = 15,
};
// and those of the chart, in which 6, 10, 12 and 13 are unknown.
enum Chart2DColour : std::uint32_t {
    kChart2DGround = 0,
    kChart2DGrid = 1,
    kChart2DAxisLines = 2,  // their arrowheads and ticks too
    kChart2DTitleText = 3,
    kChart2DXLabels = 4,
    kChart2DYLabels = 5,
    kChart2DPointLabels = 7,
    kChart2DXTitle = 8,
    kChart2DYTitle = 9,
    kChart2DSubtitleText = 11,
    kChart2DStoredColour = 14,
    kChart2DColourEnd = 15,
};

// Codes of the WM_NOTIFY that the parent gets.
enum Chart2DCode : std::uint32_t {
    kChart2DPointSelected = 1124,  // with series and point
    kChart2DPointMoved = 1125,     // the same
    kChart2DDragEnded = 1126,      // this and the next without
    kChart2DXRangeChanged = 1127,  // by itself
    kChart2DYRangeChanged = 1128,
};

}  // namespace corvex
