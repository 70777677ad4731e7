// All that a 3-D chart holds: what is drawn, and in which state the user's hand has left it.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/chart/ChartHand.h"
#include "controls/chart/TickList.h"
#include "controls/chart3d/Projection.h"
#include "controls/chart3d/QZChart3DPlot.h"

namespace corvex {

// What a chart's own label function is asked; nothing where it has none or leaves the label to the chart.
class IChart3DLabels {
public:
    virtual ~IChart3DLabels() = default;
    virtual std::optional<std::string> LabelOf(ChartLabelKind kind, const Point3D& point, QZChart3DPlot* plot, int row,
                                               int column) = 0;
};

// What its page has set, the plots, and what the user has made of them. On the thread of the chart's window.
struct Chart3DModel : ChartHand {
    static constexpr std::size_t kTitleLength = 100, kSubtitleLength = 60, kAxisTitleLength = 40;

    std::uint32_t style = kChart3DDefaultStyle;
    Chart3DSpace space;  // but for `normalises`, which Seen has from the style
    std::array<TickList, kChart3DAxisCount> ticks;
    std::array<int, kChart3DAxisCount> tickSpacing{50, 50, 50};  // pixels
    int labelPad = 40;                                           // pixels between the box and its axes' titles
    std::array<std::string, kChart3DAxisCount> axisTitles;
    std::string title = "3D Chart", subtitle = "v2.0";
    std::array<std::uint32_t, kChart3DColourEnd> colours{
        0xFFFFFF, 0x969696, 0, 0, 0, 0, 0, 0, 0x787878, 0x787878, 0x787878, 0xC8C8C8, 0, 0, 0, 0, 0, 0x9EFAFE, 0};
    std::vector<std::unique_ptr<QZChart3DPlot>> plots;  // in the order of addition
    std::uint32_t plotChanges = 0;                      // how often one came or went
    QZChart3DPlot* lastSelected = nullptr;              // of `plots`, or null
    int width = 0, height = 0;                          // of the client, in pixels
    bool isPanned = false;                              // by the user, and stays where it is from then on

    bool Has(std::uint32_t styleBits) const { return (style & styleBits) != 0; }
    Projection Seen() const {
        Chart3DSpace seen = space;
        seen.normalises = Has(kChart3DNormalise);
        return Projection(seen);
    }
};

}  // namespace corvex
