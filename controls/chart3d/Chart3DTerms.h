// The words in which a 3-D chart and its page talk: points, style and plot flags, colours and notification codes.
#pragma once

#include <cstddef>
#include <cstdint>

#include "controls/chart/ChartTerms.h"

namespace corvex {

// One point of a surface. x lies along X, y along the depth, and z is the height.
struct Point3D {
    float x = 0.0F, y = 0.0F, z = 0.0F;
    std::uint32_t flags = 0;  // kPointSelected
};
static_assert(sizeof(Point3D) == 16);

constexpr bool IsSelected(const Point3D& point) {
    return (point.flags & kPointSelected) != 0;
}

enum Chart3DStyle : std::uint32_t {
    kChart3DOffscreen = kChartOffscreen,
    kChart3DXTicks = 0x0002,         // made by the chart
    kChart3DDepthTicks = 0x0004,     //
    kChart3DVerticalTicks = 0x0008,  //
    kChart3DSubtitle = 0x0010,
    kChart3DNormalise = 0x0020,  // coordinates are scaled to the box
    kChart3DSelectionLabel = 0x0040,
    kChart3DXFollows = 0x0080,  // the range follows the data
    kChart3DDepthFollows = 0x0100,
    kChart3DVerticalFollows = 0x0200,
    kChart3DTickLines = 0x0400,  // with their labels
    kChart3DWireframe = 0x4000,
    kChart3DDefaultStyle = 0x0461,
    kChart3DAnyTicks = 0x000E,
    kChart3DAnyFollows = 0x0380,
};

enum Plot3DFlag : std::uint32_t {
    kPlotDragX = 0x001,  // any of the three enables dragging; only the height is moved by the mouse
    kPlotDragDepth = 0x002,
    kPlotDragHeight = 0x004,
    kPlotPick = 0x008,          // a point by a click
    kPlotBand = 0x010,          // points by the rubber band
    kPlotNoPoints = 0x020,      // none is drawn
    kPlotAllPoints = 0x080,     // not the selected ones alone
    kPlotColourHeight = 0x100,  // through the ramp
    kPlotHidden = 0x200,
    kPlotDefaultFlags = 0x014,
    kPlotAnyDrag = 0x007,
    kPlotAnyPick = 0x018,
};

// What the ramp of a plot spans: the plot's own heights, or the chart's vertical range.
enum Plot3DType : std::uint32_t { kRampOfPlot = 0, kRampOfChart = 1 };

// Colours are 0x00BBGGRR. Those of a plot:
enum Plot3DColour : std::uint32_t {
    kPlotStoredColour = 7,
    kSelectedPointColour = 12,
    kPointColour = 13,
    kPlotLineColour = 15,
    kFaceColour = 16,
};
// and those of the chart, in which 7 and 12 to 16 are unknown.
enum Chart3DColour : std::uint32_t {
    kChart3DGround = 0,
    kChart3DBox = 1,  // tick lines too
    kChart3DStored = 2,
    kChart3DTitleText = 3,
    kChart3DXLabels = 4,
    kChart3DDepthLabels = 5,
    kChart3DVerticalLabels = 6,
    kChart3DXTitle = 8,
    kChart3DDepthTitle = 9,
    kChart3DVerticalTitle = 10,
    kChart3DSubtitleText = 11,
    kChart3DSelectionFill = 17,
    kChart3DSelectionText = 18,
    kChart3DColourEnd = 19,
};

// Codes of the WM_NOTIFY that the parent gets.
enum Chart3DCode : std::uint32_t {
    kPointWasSelected = 1224,  // with plot, row and column
    kPointWasMoved = 1225,     // the same
    kDragHasEnded = 1226,      // this and the next without
    kXRangeHasChanged = 1227,  // by itself
    kDepthRangeHasChanged = 1228,
    kVerticalRangeHasChanged = 1229,
    kChart3DMenuWanted = 1230,  // the code of a WM_COMMAND, with the message's screen place
};

// Their order wherever there is one of each.
enum Chart3DAxis : std::size_t { kXAxis, kDepthAxis, kVerticalAxis, kChart3DAxisCount };

}  // namespace corvex
