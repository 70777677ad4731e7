// What a label shows.
#pragma once

#include "controls/richstatic/FlashTextModel.h"

namespace corvex {

struct RichStaticModel {
    FlashTextModel label;
    std::uint32_t borderColour = 0;  // kNoColour: no border

    // A text without a colour takes that of the ground: it is there to be read, not to be seen.
    std::uint32_t PaintedTextColour() const {
        return label.TextColour() == kNoColour ? label.BackColour() : label.TextColour();
    }
};

}  // namespace corvex
