// The three fonts of a grid.
#pragma once

#include <array>
#include <memory>

#include "controls/grid/GridHost.h"
#include "controls/window/GdiObjects.h"

namespace corvex {

// On one thread.
class GridFonts {
public:
    GridFonts();

    HFONT Get(GridFont font) const { return fonts_[static_cast<std::size_t>(font)]->Get(); }
    // Owns the font from now on, and deletes the former one unless it serves as another of the three. Null is ignored.
    void Adopt(GridFont role, HFONT font);
    // Of one line.
    GridTextSize Measure(HDC dc, GridFont font, std::string_view line) const;

private:
    std::array<std::shared_ptr<OwnedFont>, 3> fonts_;  // by GridFont
};

}  // namespace corvex
