// How numbers and names stand in a definition file. Nothing here looks at the locale.
#pragma once

#include <cstdint>
#include <string_view>

namespace corvex {

// Folds every hexadecimal digit of the text into a word, four bits each, and skips all else: "0x1F", "1F" and "1 F"
// read alike, "10" is 16, and of more than eight digits the last eight count.
std::uint32_t HexText(std::string_view text);

// The leading decimal number, after blanks and one sign; 0 when there is none. Unsigned: 4294967295 is read as it
// stands, and -1 is the same word. A number beyond 32 bits is cut to the largest.
std::uint32_t DecimalWord(std::string_view text);

// The leading number as atof reads it in the "C" locale, narrowed: 0 when there is none, infinity beyond the range of
// a float. "inf" and "nan" are numbers, since "%f" writes them.
float DecimalFloat(std::string_view text);

// Element and attribute names match without regard to case, in ASCII.
bool SameName(std::string_view a, std::string_view b);

// The byte that a character of the parser came from. A byte at or above 0x80 of a narrow file comes sign-extended and
// gives its own byte back, so a narrow file keeps its bytes; any other character above 0xFF has no byte and becomes a
// question mark.
char NarrowCharacter(char16_t c);

}  // namespace corvex
