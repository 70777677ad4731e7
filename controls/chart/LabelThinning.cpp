#include "controls/chart/LabelThinning.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr int kAirBeside = 1, kAirAbove = 3;

bool SharesExtent(int a1, int a2, int b1, int b2) {
    return std::max(std::min(a1, a2), std::min(b1, b2)) < std::min(std::max(a1, a2), std::max(b1, b2));
}

}  // namespace

YUpBox LabelBox(YUpPoint at, TextSide side, YUpSize size) {
    const int left = side == TextSide::kRight  ? at.x
                     : side == TextSide::kLeft ? at.x - size.width
                                               : at.x - size.width / 2;
    const int top = at.y + size.height / 2;
    return {{left, top - size.height}, {left + size.width, top}};
}

bool Overlap(const YUpBox& a, const YUpBox& b) {
    return SharesExtent(a.corner.x, a.opposite.x, b.corner.x, b.opposite.x) &&
           SharesExtent(a.corner.y, a.opposite.y, b.corner.y, b.opposite.y);
}

bool LabelThinning::Takes(const YUpBox& box) {
    const auto [left, right] = std::minmax(box.corner.x, box.opposite.x);
    const auto [bottom, top] = std::minmax(box.corner.y, box.opposite.y);
    const YUpBox tight{{left + kAirBeside, bottom + kAirAbove}, {right - kAirBeside, top - kAirAbove}};
    if ((other_ && Overlap(tight, *other_)) || (last_ && Overlap(tight, *last_))) return false;
    last_ = tight;
    return true;
}

}  // namespace corvex
