// Numbers as text with six decimals, without the C library's printing and scanning.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace corvex {

// Writes the number as printf's "%f" does into `out`, as much of it as there is room for and without a terminator;
// returns the length of the whole text. Infinities are "inf" and "-inf"; every NaN is "nan", since its sign means
// nothing and differs between processors.
std::size_t PrintFixed(double value, std::span<char> out);

// Reads a decimal number, "inf" or "nan" to the nearest double, as strtod does. False, with `value` unchanged, when the
// token isn't such a number to its very end. For tokens of up to 200 characters without exponent, which can neither
// overflow nor vanish.
bool ReadNumber(std::string_view token, double& value);

// What is left of a finite number after it was printed with six decimals and read back: the same bits, minus zero
// included.
double RoundToSixDecimals(double value);

}  // namespace corvex
