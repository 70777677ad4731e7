#include "controls/gauge/GaugeNumberModel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace corvex {

namespace {

constexpr std::size_t kBufferSize = 255;

// As printf reads it, but never so many that it would fetch memory for digits that the buffer cuts off.
int Precision(std::uint32_t decimals) {
    return std::min(static_cast<std::int32_t>(decimals), static_cast<std::int32_t>(kBufferSize));
}

template <class Number>
std::string Printed(const char* format, std::uint32_t decimals, Number number, std::size_t capacity) {
    std::array<char, kBufferSize> text{};
    std::snprintf(text.data(), std::min(capacity, text.size()), format, Precision(decimals), number);
    return text.data();
}

}  // namespace

std::int32_t TruncateGaugeValue(float value) {
    // Written so that a NaN fails the test.
    if (value >= -2147483648.0f && value < 2147483648.0f) return static_cast<std::int32_t>(value);
    return INT32_MIN;
}

std::string FormatDecimals(float value, std::uint32_t decimals, std::size_t capacity) {
    return Printed("%.*f", decimals, static_cast<double>(value), capacity);
}

std::string FormatWhole(float value, std::uint32_t digits, std::size_t capacity) {
    return Printed("%.*i", digits, static_cast<int>(TruncateGaugeValue(value)), capacity);
}

std::string FormatGaugeNumber(float value, std::uint32_t decimals) {
    if (std::fmod(static_cast<double>(value), 1.0) == 0.0) return std::to_string(TruncateGaugeValue(value));
    return FormatDecimals(value, decimals, kBufferSize);
}

}  // namespace corvex
