#include "controls/grid/GridAxis.h"

#include <algorithm>

namespace corvex {

GridAxis::GridAxis(int body, int freshSize) : freshSize_(static_cast<std::uint16_t>(freshSize)) {
    Resize(body);
}

bool GridAxis::SetSize(int index, int pixels) {
    if (!Has(index)) return false;
    sizes_[static_cast<std::size_t>(index)] = static_cast<std::uint16_t>(std::clamp(pixels, 0, kLargest));
    return true;
}

void GridAxis::Resize(int body) {
    sizes_.resize(static_cast<std::size_t>(body) + 1, freshSize_);
    for (int* const place : {&first, &cursor, &anchor, &barMaximum})
        *place = std::max(1, std::min(*place, body));
}

int GridAxis::Next(int from, int step) const {
    for (int i = from + step; IsInBody(i); i += step) {
        if (Size(i) != 0) return i;
    }
    return 0;
}

int GridAxis::Fit(int from, int step, int room) const {
    int count = 0;
    for (int i = from; IsInBody(i); i += step) {
        room -= Size(i);
        if (room < 0) break;
        ++count;
    }
    return count;
}

int GridAxis::StartOf(int index, int enough) const {
    int start = 0;
    for (int i = first; i < index && start <= enough; ++i)
        start += Size(i);
    return start;
}

int GridAxis::At(int pixel) const {
    for (int i = first; i <= Last(); ++i) {
        if (pixel < Size(i)) return i;
        pixel -= Size(i);
    }
    return -1;
}

GridAxis::Walk GridAxis::WalkFromFirst(int room) const {
    int i = first;
    while (room >= 0 && i <= Last())
        room -= Size(i++);
    return {i, room < 0};
}

int GridAxis::FirstToShowCursor(int room) const {
    if (cursor <= first) return cursor;
    int left = room - Size(cursor), shown = cursor;
    while (shown > first && (Size(shown - 1) == 0 || Size(shown - 1) <= left))
        left -= Size(--shown);
    return shown;
}

bool GridAxis::IsSelected(int index) const {
    return index >= std::min(cursor, anchor) && index <= std::max(cursor, anchor);
}

}  // namespace corvex
