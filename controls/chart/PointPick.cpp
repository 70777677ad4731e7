#include "controls/chart/PointPick.h"

#include <algorithm>
#include <cstdint>

namespace corvex {

namespace {

bool IsBetween(int value, int end, int otherEnd) {
    return value >= std::min(end, otherEnd) && value <= std::max(end, otherEnd);
}

}  // namespace

bool IsNear(YUpPoint place, YUpPoint pointer, int radius) {
    const auto isWithin = [radius](std::int64_t one, std::int64_t other) {
        return one - other <= radius && other - one <= radius;
    };
    return isWithin(place.x, pointer.x) && isWithin(place.y, pointer.y);
}

bool IsInBox(YUpPoint place, const YUpBox& box) {
    return IsBetween(place.x, box.corner.x, box.opposite.x) && IsBetween(place.y, box.corner.y, box.opposite.y);
}

PointClick ClickOn(bool isSelected, int selectedCount, bool control) {
    if (!isSelected || selectedCount < 2) return PointClick::kSelect;
    return control ? PointClick::kDeselect : PointClick::kKeepGroup;
}

}  // namespace corvex
