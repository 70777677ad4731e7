// Lays the rows of a live table out on a screen.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "apps/cli/LiveTable.h"

namespace corvex {

// Lines for at most `height` rows of `width` columns, 1 at the least: as many columns of rows beside one another as are
// needed and fit. Digits stand right-aligned in a fixed place. What finds no place is counted on the last line. An
// alarm is marked with "!" and, with `colours`, drawn in its colour by an escape sequence.
std::vector<std::string> TableLines(const std::vector<LiveRow>& rows, std::size_t width, std::size_t height,
                                    bool colours);

// "0.3s", "12s", "4m", "2h", or "-" for never; at most four columns.
std::string AgeText(double seconds);

// The text in a colour (0x00BBGGRR) by escape sequences of 24-bit colour.
std::string Coloured(const std::string& text, std::uint32_t colour);

}  // namespace corvex
