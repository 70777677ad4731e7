// How each cell of a grid is to be drawn.
#pragma once

#include <string>

#include "controls/grid/GridModel.h"

namespace corvex {

enum class GridFont { kCell, kHeading, kTitle };

// Of a cell, or of a heading in the header row. Colours are 0x00BBGGRR, the format is of the system's text drawing.
struct GridLook {
    std::string text;
    std::uint32_t fill = 0, textColour = 0;
    unsigned format = 0;
    bool isBeingEdited = false;
};

inline constexpr std::uint32_t kGridDisabledText = 0x787878;

// The average of each channel.
constexpr std::uint32_t blend(std::uint32_t a, std::uint32_t b) {
    std::uint32_t mixed = 0;
    for (int shift = 0; shift < 24; shift += 8)
        mixed |= ((a >> shift & 0xFF) + (b >> shift & 0xFF)) / 2 << shift;
    return mixed;
}

// Of a cell that there is.
GridLook LookOfCell(const GridModel& grid, int row, int column);

}  // namespace corvex
