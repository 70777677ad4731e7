// The selected points of a 3-D chart: clicked, in a rubber band, dragged. Hidden plots are left alone by all but a
// drag.
#pragma once

#include "controls/chart3d/Chart3DHost.h"

namespace corvex {

class Chart3DSelection {
public:
    Chart3DSelection(Chart3DModel& chart, IChart3DHost& host) : chart_(chart), host_(host) {}

    struct Place {
        int row = 0, column = 0;
    };

    void Clear();
    // The first point of a plot that can be picked near the pointer.
    std::optional<Place> Find(const QZChart3DPlot& plot, YUpPoint pointer) const;
    // On a point of that plot, of those there are. The parent hears of one that is selected by it.
    void Click(std::size_t plot, Place point, bool control);
    // Selects what is in the box, and nothing else; the parent does not hear of it.
    void SelectIn(const YUpBox& box);
    // Moves the selected points of every plot whose heights can be dragged, those of each together, by so many pixels.
    // The parent hears of each point. False when there is no such plot.
    bool Drag(int pixels, ChartRange limits);

    // To be picked in by a click, or by the rubber band.
    static bool CanPick(const QZChart3DPlot& plot) { return plot.Is(kPlotAnyPick) && !plot.Is(kPlotHidden); }

private:
    void Move(std::size_t plot, float shift);

    Chart3DModel& chart_;
    IChart3DHost& host_;
};

}  // namespace corvex
