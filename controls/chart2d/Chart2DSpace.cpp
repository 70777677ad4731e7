#include "controls/chart2d/Chart2DSpace.h"

#include <cmath>

namespace corvex {

Chart2DScale::Chart2DScale(ChartRange range, int client)
    : minimum_(static_cast<double>(range.minimum)),
      span_(std::abs(static_cast<double>(range.maximum) - minimum_)),
      pixels_(client - 2 * kMargin),
      length_(client - 2 * kMargin) {
    if (span_ != 0.0) return;
    span_ = 1.0;
    pixels_ = 0.0;
}

bool Chart2DSpace::HasAxis(Chart2DAxis axis) const {
    const ChartRange& across = ranges_[OtherAxis(axis)];
    return across.minimum <= 0.0F && 0.0F <= across.maximum;
}

int Chart2DSpace::LevelOf(Chart2DAxis axis) const {
    const Chart2DScale& across = scales_[OtherAxis(axis)];
    return HasAxis(axis) ? across.ToPixel(0.0F) : across.Start();
}

}  // namespace corvex
