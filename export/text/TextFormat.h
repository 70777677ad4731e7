// printf into a string, and text laid out in columns.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvex {

[[gnu::format(printf, 1, 2)]] std::string Printf(const char* format, ...);

// "1 value", "2 values".
std::string Counted(std::size_t count, std::string_view noun);

// "0x%.8X".
std::string HashText(std::uint32_t hash);

// The text as UTF-8: bytes that are no UTF-8 are taken for the narrow code page (Latin 1), so a degree sign of a
// definition stays one.
std::string Utf8Text(std::string_view text);

// A text as it can stand in one row of a terminal: UTF-8, control characters become blanks.
std::string DisplayText(std::string_view text);

// Columns on the screen that a UTF-8 text takes, at one for each character.
std::size_t DisplayWidth(std::string_view text);

// At most `width` characters of a UTF-8 text; a cut text ends in '~'.
std::string CutToWidth(std::string_view text, std::size_t width);

// The same with the '~' in the middle: what tells two long texts apart often stands at the end.
std::string CutMiddle(std::string_view text, std::size_t width);

// The text with blanks behind it, or before it, up to `width` columns.
std::string PadRight(std::string_view text, std::size_t width);
std::string PadLeft(std::string_view text, std::size_t width);

// Lines of cells, each column as wide as its widest cell, two blanks between columns, no blanks at the end of a line.
std::string AlignColumns(const std::vector<std::vector<std::string>>& rows, std::string_view indent);

}  // namespace corvex
