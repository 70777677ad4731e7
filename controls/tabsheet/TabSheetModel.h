// What a tab sheet decides without a window: locked parts of the frame, places of tabs, rectangles.
#pragma once

#include <cstddef>

namespace corvex {

inline constexpr int kSheetMinimumTrackHeight = 60;    // pixels
inline constexpr std::size_t kTabTitleCapacity = 150;  // with the terminator

// A hit-test result as the system codes it. A part of the frame whose bit is set in the hit-test word reads as client
// area, so that it can't be dragged; everything else stays.
int LockedHit(int hit, unsigned locks);

// Where a tab goes in: the end for -1 and for all that lies beyond.
int TabPlace(int wanted, int count);
// The tab to be shown after the shown one, at `removed`, went and `remaining` are left. -1 when none is.
int TabAfterRemoval(int removed, int remaining);

struct PageBox {
    int x, y, width, height;
    bool operator==(const PageBox&) const = default;
};
// A control of no size leaves edges that have crossed: such a page has no size either.
PageBox BoxOfEdges(int left, int top, int right, int bottom);

}  // namespace corvex
