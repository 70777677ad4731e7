// Fractions as a legacy text definition writes them.
#pragma once

#include <string>
#include <string_view>

namespace corvex {

// The leading plain decimal number, after blanks and one sign, as atof reads it in the "C" locale, whatever the locale
// is: 0 when there is none, infinity beyond the range of a double. Words and hexadecimal digits are no numbers here, so
// "inf" is 0 and "0x10" is 0.
double PlainDecimal(std::string_view text);

// The same narrowed to a float: infinity beyond its range.
float PlainDecimalFloat(std::string_view text);

// printf's "%.2f" and "%f", whatever the locale.
std::string TwoDecimals(double value);
std::string SixDecimals(double value);

}  // namespace corvex
