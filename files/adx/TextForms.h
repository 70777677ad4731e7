// How numbers and names stand in a definition file. Nothing here looks at the locale.
#pragma once

#include <cstddef>
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
constexpr char LowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}
constexpr bool SameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (LowerCase(a[i]) != LowerCase(b[i])) return false;
    }
    return true;
}

// The byte that a character of the parser came from. A byte at or above 0x80 of a narrow file comes sign-extended and
// gives its own byte back, so a narrow file keeps its bytes; any other character above 0xFF has no byte and becomes a
// question mark.
constexpr char NarrowCharacter(char16_t c) {
    const bool isByte = c <= 0xFF || c >= 0xFF80;
    return isByte ? static_cast<char>(static_cast<unsigned char>(c & 0xFF)) : '?';
}

}  // namespace corvex
