// How far points on a chart go when they are dragged.
#pragma once

#include "controls/chart/ChartTerms.h"

namespace corvex {

// What so many pixels are on an axis that has this span on its whole length in pixels. 0 where that is no number.
float ShiftOf(int pixels, float span, float length);

// The shift, or what of it takes the value to its limit and not beyond. Cut down by one point after the other, it
// leaves all of them inside together. What is no number, or endless, cannot be held inside and holds no other back.
float ShiftWithin(float value, float shift, ChartRange limits);

}  // namespace corvex
