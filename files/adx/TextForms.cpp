#include "files/adx/TextForms.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace corvex {
namespace {

bool IsSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Drops leading blanks and one sign; true when it was a minus.
bool TakeSign(std::string_view& text) {
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
    const bool minus = text.front() == '-';
    text.remove_prefix(1);
    return minus;
}

// Of a number that no double holds: true when it is too large, false when it is too small.
bool IsHuge(std::string_view number) {
    const std::size_t e = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, e);
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    std::string_view exponent = number.substr(std::min(e + 1, number.size()));
    const bool minus = TakeSign(exponent);
    const std::int64_t size = DecimalWord(exponent);
    return point - first + (minus ? -size : size) > 0;
}

}  // namespace

std::uint32_t HexText(std::string_view text) {
    std::uint32_t word = 0;
    for (const char c : text) {
        const char lower = LowerCase(c);
        if (IsDigit(c)) {
            word = word << 4 | static_cast<std::uint32_t>(c - '0');
        } else if (lower >= 'a' && lower <= 'f') {
            word = word << 4 | static_cast<std::uint32_t>(lower - 'a' + 10);
        }
    }
    return word;
}

std::uint32_t DecimalWord(std::string_view text) {
    const bool minus = TakeSign(text);
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < text.size() && IsDigit(text[i]); ++i) {
        word = std::min<std::uint64_t>(word * 10 + static_cast<std::uint64_t>(text[i] - '0'), 0xFFFFFFFF);
    }
    const auto magnitude = static_cast<std::uint32_t>(word);
    return minus ? 0U - magnitude : magnitude;
}

float DecimalFloat(std::string_view text) {
    const bool minus = TakeSign(text);
    // The sign is taken already; a second one ends the number before it began.
    if (!text.empty() && text.front() == '-') return 0.0F;
    double number = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range) {
        const auto length = static_cast<std::size_t>(end - text.data());
        number = IsHuge(text.substr(0, length)) ? std::numeric_limits<double>::infinity() : 0.0;
    } else if (error != std::errc()) {
        number = 0.0;
    }
    if (minus) number = -number;
    constexpr double kLimit = std::numeric_limits<float>::max();
    if (std::abs(number) > kLimit) return std::copysign(std::numeric_limits<float>::infinity(), minus ? -1.0F : 1.0F);
    return static_cast<float>(number);
}

}  // namespace corvex
