#include "files/ads/AdsNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

namespace corvex {
namespace {

// The largest double has 309 digits before the point; then point, decimals and sign.
constexpr std::size_t kLongestFixed = 309 + 1 + 6 + 1;
constexpr std::int64_t kExponentLimit = 1000000;

bool IsDigit(std::string_view text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t at) {
    while (IsDigit(text, at))
        ++at;
    return at;
}

bool IsSign(std::string_view text, std::size_t at) {
    return at < text.size() && (text[at] == '-' || text[at] == '+');
}

// The number at the start of a text without a sign: its length, and what tells a huge one from a tiny one.
struct Shape {
    std::size_t length = 0;
    std::int64_t magnitude = 0;  // the power of ten above the first digit that isn't zero
};

std::int64_t Exponent(std::string_view text, std::size_t at, std::size_t end) {
    const bool minus = text[at] == '-';
    if (IsSign(text, at)) ++at;
    std::int64_t exponent = 0;
    for (; at < end; ++at)
        exponent = std::min<std::int64_t>(exponent * 10 + (text[at] - '0'), kExponentLimit);
    return minus ? -exponent : exponent;
}

Shape ShapeOf(std::string_view text) {
    const std::size_t point = SkipDigits(text, 0);
    std::size_t end = point;
    if (end < text.size() && text[end] == '.') end = SkipDigits(text, end + 1);
    if (point == 0 && end < 2) return {};
    const std::size_t first = std::min(text.find_first_of("123456789"), end);
    Shape shape{end, static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first)};
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        const std::size_t digits = end + 1 + (IsSign(text, end + 1) ? 1 : 0);
        if (IsDigit(text, digits)) {
            shape.length = SkipDigits(text, digits);
            shape.magnitude += Exponent(text, end + 1, shape.length);
        }
    }
    return shape;
}

std::string Fixed(double value, int decimals) {
    char text[kLongestFixed];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals).ptr;
    return {text, end};
}

}  // namespace

double PlainDecimal(std::string_view text) {
    const std::size_t first = std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size());
    text.remove_prefix(first);
    const bool minus = !text.empty() && text.front() == '-';
    if (IsSign(text, 0)) text.remove_prefix(1);
    const Shape shape = ShapeOf(text);
    if (shape.length == 0) return 0.0;  // a lone sign makes no number, so not a negative one either
    double number = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + shape.length, number);
    if (error == std::errc::result_out_of_range) {
        number = shape.magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    } else if (error != std::errc()) {
        number = 0.0;
    }
    return minus ? -number : number;
}

float PlainDecimalFloat(std::string_view text) {
    const double number = PlainDecimal(text);
    if (std::abs(number) <= static_cast<double>(std::numeric_limits<float>::max())) return static_cast<float>(number);
    return std::copysign(std::numeric_limits<float>::infinity(), number < 0.0 ? -1.0F : 1.0F);
}

std::string TwoDecimals(double value) {
    return Fixed(value, 2);
}

std::string SixDecimals(double value) {
    return Fixed(value, 6);
}

}  // namespace corvex
