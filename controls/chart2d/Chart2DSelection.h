// The selected points of a 2-D chart: clicked, in a rubber band, dragged. Hidden series are left alone by all but a
// drag.
#pragma once

#include "controls/chart2d/Chart2DHost.h"

namespace corvex {

class Chart2DSelection {
public:
    Chart2DSelection(Chart2DModel& chart, IChart2DHost& host) : chart_(chart), host_(host) {}

    struct Place {
        std::size_t series = 0, index = 0;
    };

    void Clear();
    // The first point near the pointer of the first series in which it can be picked. None without a plot.
    std::optional<Place> Find(YUpPoint pointer) const;
    // On a point. With control up, one of several that are selected, in whichever series, leaves them so, and any other
    // takes the place of them all. The parent hears of one that is selected by it.
    void Click(Place place, bool control);
    // Selects what is in the box, and nothing else; the parent does not hear of it.
    void SelectIn(const YUpBox& box);
    // Moves the selected points of every series by so many pixels on those axes on which it can be dragged. All that
    // move on an axis move alike on it, as far as the first of them can. The parent hears of each point. False when
    // there is no such series.
    bool Drag(int across, int up);

    // To be picked in by a click, or by the rubber band.
    static bool CanPick(const QZChart2DSeries& series) {
        return series.Is(kSeriesAnyPick) && !series.Is(kSeriesHidden);
    }

private:
    using Shift = std::array<float, kChart2DAxisCount>;

    Shift Within(Shift shift) const;
    void Move(std::size_t series, const Shift& shift);

    Chart2DModel& chart_;
    IChart2DHost& host_;
};

}  // namespace corvex
