// What a grid makes of texts: kinds of cells, headings, and the form in which cells travel by the clipboard.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/grid/GridTerms.h"

namespace corvex {

GridCellType GridTypeOf(std::string_view text);

// Of a column from 1 on: a blank and A to Z, then two letters.
std::string GridColumnLetters(int column);

// Of a title, which has one more than newlines. At least 1.
int CountLines(std::string_view text);

// A block of fields that were pasted, row by row.
struct GridFields {
    int rows = 0, columns = 0;
    std::vector<std::string> texts;  // rows * columns, each cut to kGridFieldLength
};

// Tabs part fields, \r\n or \n ends a line; the last line may lack its end. All lines are taken to have as many fields
// as they have on average. Nothing for an empty text, and for a block of more rows or columns than these.
std::optional<GridFields> ParseGridFields(std::string_view text, int mostRows, int mostColumns);

}  // namespace corvex
