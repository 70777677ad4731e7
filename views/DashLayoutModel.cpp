#include "views/DashLayoutModel.h"

#include <algorithm>

namespace corvex {

namespace {

// Truncated toward zero before the start is added.
std::int32_t Edge(std::uint16_t percent, std::int32_t start, std::int32_t end) {
    const std::int64_t length = std::int64_t{end} - start;
    const std::int64_t edge = percent * length / 100 + start;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(edge, INT32_MIN, INT32_MAX));
}

}  // namespace

PixelArea GaugePlace(const ADXDGENTRY& entry, const PixelArea& area) {
    return {Edge(entry.left, area.left, area.right), Edge(entry.top, area.top, area.bottom),
            Edge(entry.right, area.left, area.right), Edge(entry.bottom, area.top, area.bottom)};
}

}  // namespace corvex
