// All that a 2-D chart holds: what is drawn, and in which state the user's hand has left it.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/chart/ChartHand.h"
#include "controls/chart/TickList.h"
#include "controls/chart2d/Chart2DSpace.h"
#include "controls/chart2d/QZChart2DSeries.h"

namespace corvex {

// What a chart's own label function is asked; nothing where it has none or leaves the label to the chart.
class IChart2DLabels {
public:
    virtual ~IChart2DLabels() = default;
    virtual std::optional<std::string> LabelOf(ChartLabelKind kind, const Point2D& point, QZChart2DSeries* series,
                                               int index) = 0;
};

// What its page has set, the series, and what the user has made of them. On the thread of the chart's window.
struct Chart2DModel : ChartHand {
    static constexpr std::size_t kTitleLength = 100, kSubtitleLength = 60, kAxisTitleLength = 40;
    static constexpr ChartRange kDefaultEnds{-255.0F, 255.0F};

    std::uint32_t style = kChart2DDefaultStyle;
    std::array<ChartRange, kChart2DAxisCount> ranges{kDefaultEnds, kDefaultEnds};
    std::array<ChartRange, kChart2DAxisCount> limits{kDefaultEnds, kDefaultEnds};  // of points that are dragged
    std::array<TickList, kChart2DAxisCount> ticks;
    std::array<std::uint16_t, kChart2DAxisCount> tickSpacing{50, 50};  // pixels; not 0
    std::string title = "2D Chart", subtitle = "QZ2DChart v2";
    std::array<std::string, kChart2DAxisCount> axisTitles{"X Axis", "Y Axis"};
    std::array<std::uint32_t, kChart2DColourEnd> colours{0xFFFFFF, 0xDCDCDC, 0, 0,        0, 0, 0,       0xFF0000,
                                                         0,        0,        0, 0xC8C8C8, 0, 0, 0xC8C8C8};
    std::vector<std::unique_ptr<QZChart2DSeries>> series;  // in the order of drawing
    std::uint32_t seriesChanges = 0;                       // how often one came or went
    struct Picked {
        QZChart2DSeries* series = nullptr;  // of `series`, or null
        std::size_t index = 0;              // which it may have no longer
    };
    Picked picked;              // by the last click on a point
    int width = 0, height = 0;  // of the client, in pixels

    bool Has(std::uint32_t styleBits) const { return (style & styleBits) != 0; }
    Chart2DSpace Seen() const { return {ranges, width, height}; }
};

}  // namespace corvex
