// Values in digits, as the gauges print them: one text for every float there is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace corvex {

// Toward zero to 32 bits. What does not fit, and what is no number, becomes -2147483648.
std::int32_t TruncateGaugeValue(float value);

// "%.*f" and "%.*i", the latter of the truncated value, cut to capacity - 1 characters. Decimals are signed here, as
// they are in printf: above 0x7FFFFFFF they count as not given.
std::string FormatDecimals(float value, std::uint32_t decimals, std::size_t capacity);
std::string FormatWhole(float value, std::uint32_t digits, std::size_t capacity);

// A value without a fraction as the whole number, any other with decimals; so a scale mixes 15 with 7.50. The largest
// floats have no fraction and read -2147483648.
std::string FormatGaugeNumber(float value, std::uint32_t decimals);

}  // namespace corvex
