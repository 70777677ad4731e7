// What a progress bar shows, and how long its bar is.
#pragma once

#include <cstdint>

#include "controls/richstatic/FlashTextModel.h"

namespace corvex {

// Pixels; right and bottom lie outside.
struct BarPart {
    int left, top, right, bottom;
    bool Empty() const { return left >= right || top >= bottom; }
};

struct TextProgressModel {
    FlashTextModel label;
    std::uint32_t barColour = 0xD26400;
    bool vertical = false;
    std::int32_t minimum = 0, maximum = 255, step = 1, position = 0;

    // Of a bar in a window of that many pixels: below 0 for a position below 0, beyond the size for one above the
    // range. An empty range has no bar.
    int Length(int size) const;
    // The bar and what is left of the window, each within it: the bar grows from the left, or upward from the bottom.
    BarPart Bar(int width, int height) const;
    BarPart Rest(int width, int height) const;

    // A step beyond the maximum goes back to the minimum. The position before it is returned.
    std::int32_t StepIt();
    // A text without a colour over a ground that has one is drawn in the colour of the ground where the bar is, and in
    // that of the bar elsewhere.
    bool TwoTone() const { return label.TextColour() == kNoColour && label.BackColour() != kNoColour; }
};

}  // namespace corvex
