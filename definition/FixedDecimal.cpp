#include "definition/FixedDecimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace corvex {
namespace {

// The largest double has 309 digits before the point; then point, decimals and sign.
constexpr std::size_t kLongestFixed = 309 + 1 + 6 + 1;

constexpr double kTwo30 = 1073741824.0;
constexpr double kTwo51 = 2251799813685248.0;
constexpr double kTwo52 = 4503599627370496.0;

// The nearest whole number, for 0 <= a < 2^51: at 2^52 a double has no bits left for a fraction.
double NearestWhole(double a) {
    return (a + kTwo52) - kTwo52;
}

double RoundThroughText(double value) {
    char text[kLongestFixed];
    const std::size_t n = PrintFixed(value, text);
    ReadNumber({text, n}, value);
    return value;
}

}  // namespace

std::size_t PrintFixed(double value, std::span<char> out) {
    if (std::isnan(value)) value = std::fabs(value);
    char text[kLongestFixed];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 6).ptr;
    const auto length = static_cast<std::size_t>(end - text);
    std::copy_n(text, std::min(length, out.size()), out.data());
    return length;
}

bool ReadNumber(std::string_view token, double& value) {
    double read = 0.0;
    const char* end = token.data() + token.size();
    const auto [stop, error] = std::from_chars(token.data(), end, read);
    if (error != std::errc() || stop != end) return false;
    value = read;
    return true;
}

double RoundToSixDecimals(double value) {
    const double a = std::fabs(value);
    if (a < kTwo30) {
        // The product is within half a unit in the last place of the exact one. As long as that can't carry it over
        // the middle between two whole numbers, `whole` is the printed text without its point; and dividing two exact
        // numbers gives the double nearest to it, which is what reading the text gives.
        const double micros = a * 1e6;
        const double whole = NearestWhole(micros);
        if (std::fabs(micros - whole) + micros * 0x1p-52 < 0.5) return std::copysign(whole / 1e6, value);
    } else if (a < kTwo51 && NearestWhole(a) == a) {
        return value;
    }
    return RoundThroughText(value);
}

}  // namespace corvex
