// The font of a control: its own until somebody hands it another.
#pragma once

#include "controls/window/GdiObjects.h"

namespace corvex {

// On one thread.
class AdoptedFont {
public:
    // The system's default font for controls, in weight 500.
    AdoptedFont();

    HFONT InUse() const { return adopted_ ? adopted_.Get() : own_.Get(); }
    // Owns the font from now on and deletes the one adopted before. Null goes back to its own.
    void Adopt(HFONT font);

private:
    OwnedFont own_, adopted_;
};

}  // namespace corvex
