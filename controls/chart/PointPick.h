// How points on a chart answer the pointer: which one is meant, what a click on it does, which are in a rubber band.
#pragma once

#include "controls/chart/ChartTerms.h"

namespace corvex {

// At most so many pixels away on each axis.
bool IsNear(YUpPoint place, YUpPoint pointer, int radius);
// The border counts as inside.
bool IsInBox(YUpPoint place, const YUpBox& box);

enum class PointClick {
    kSelect,     // it, if it isn't
    kDeselect,   // it alone
    kKeepGroup,  // it and all that are selected with it, so that they can be dragged together
};
// The point is one of so many that are selected, or none of them.
PointClick ClickOn(bool isSelected, int selectedCount, bool control);

}  // namespace corvex
