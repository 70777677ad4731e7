#include "controls/chart2d/Chart2DMouse.h"

#include <algorithm>

namespace corvex {

bool Chart2DMouse::HasBand() const {
    return std::ranges::any_of(
        chart_.series, [](const auto& series) { return series->Is(kSeriesBand) && !series->Is(kSeriesHidden); });
}

// To take the mouse lets others work too.
void Chart2DMouse::Pick(YUpPoint place, bool control, std::uint32_t gesture) {
    if (!IsLatest(gesture)) return;
    if (const auto found = selection_.Find(place)) {
        if (chart_.series[found->series]->Is(kSeriesAnyDrag)) BeginDrag();
        selection_.Click(*found, control);
    } else if (!control) {
        selection_.Clear();
        host_.Repaint();
    }
}

void Chart2DMouse::Drag(int across, int up) {
    if (!selection_.Drag(across, up)) return;
    ranges_.Recompute();
    host_.Repaint();
}

// Where a limit has held it back, the pointer is put to the point again, on which it was hidden.
void Chart2DMouse::DragHasEnded(bool wasDropped) {
    const auto& [series, index] = chart_.picked;
    if (wasDropped && series != nullptr && index < series->Points().size())
        host_.PlacePointer(chart_.Seen().PlaceOf(series->At(index)));
    host_.Tell(kChart2DDragEnded, nullptr, 0);
}

}  // namespace corvex
