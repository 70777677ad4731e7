#include "controls/chart2d/Chart2DMachine.h"

#include <algorithm>
#include <new>

namespace corvex {

namespace {

bool IsColourOf2D(std::uint32_t index) {
    return index < kChart2DColourEnd && index != 6 && index != 10 && index != kSeriesSelectedColour &&
           index != kSeriesPointColour;
}

}  // namespace

QZChart2DSeries* Chart2DMachine::AddSeries(std::size_t index, bool redraws) try {
    const std::size_t place = std::min(index, chart.series.size());
    auto added = std::make_unique<QZChart2DSeries>(owner_);
    QZChart2DSeries* const series = added.get();
    chart.series.insert(chart.series.begin() + static_cast<std::ptrdiff_t>(place), std::move(added));
    ++chart.seriesChanges;
    RepaintIf(redraws);
    return series;
} catch (const std::bad_alloc&) {
    return nullptr;
}

bool Chart2DMachine::DeleteSeries(const IQZChart2DSeries* series, bool redraws) {
    const auto found = std::ranges::find_if(chart.series, [series](const auto& one) { return one.get() == series; });
    if (found == chart.series.end()) return false;
    if (chart.picked.series == found->get()) chart.picked = {};
    chart.series.erase(found);
    ++chart.seriesChanges;
    ranges.Recompute();
    RepaintIf(redraws);
    return true;
}

void Chart2DMachine::ClearSelection(bool redraws) {
    for (const auto& series : chart.series)
        series->clearSelection(redraws ? 1 : 0);
}

void Chart2DMachine::SetStyle(std::uint32_t bits, bool redraws) {
    chart.style = bits == 0 ? 0 : chart.style | bits;
    if ((bits & kChart2DAnyTicks) != 0) ranges.RebuildTicks();
    if ((bits & kChart2DAnyFollows) != 0) ranges.Recompute();
    RepaintIf(redraws);
}

void Chart2DMachine::ClearStyle(std::uint32_t bits, bool redraws) {
    chart.style &= ~bits;
    if ((bits & kChart2DXTicks) != 0) chart.ticks[kChart2DX].Clear();
    if ((bits & kChart2DYTicks) != 0) chart.ticks[kChart2DY].Clear();
    RepaintIf(redraws);
}

void Chart2DMachine::SetColour(std::uint32_t index, std::uint32_t colour) {
    if (IsColourOf2D(index)) chart.colours[index] = colour;
}

std::uint32_t Chart2DMachine::Colour(std::uint32_t index) const {
    return IsColourOf2D(index) ? chart.colours[index] : 0;
}

void Chart2DMachine::OnSize(int width, int height) {
    chart.width = width;
    chart.height = height;
    ranges.RebuildTicks();
    host_.Repaint();
}

void Chart2DMachine::RepaintIf(bool isWanted) {
    if (isWanted) host_.Repaint();
}

}  // namespace corvex
