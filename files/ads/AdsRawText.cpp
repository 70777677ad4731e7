#include "files/ads/AdsRawText.h"

#include <algorithm>
#include <charconv>

#include "definition/Truncation.h"
#include "files/ads/AdsNumber.h"

namespace corvex {
namespace {

bool IsKnownWidth(std::uint32_t bits) {
    return bits == 1 || (bits >= 8 && bits <= 32 && bits % 8 == 0);
}

// At least two digits for each whole byte; no digit at all for a zero of less than a byte.
std::string HexDigits(std::uint32_t word, std::uint32_t bits) {
    constexpr std::size_t kWordDigits = 8;
    char text[kWordDigits];
    const auto end = std::to_chars(text, text + sizeof text, word, 16).ptr;
    std::string digits(text, word != 0 ? end : text);
    // Widths beyond a word hold a zero, which any number of digits shows.
    const std::size_t wanted = std::min<std::size_t>(bits / 8 * 2, kWordDigits);
    if (digits.size() < wanted) digits.insert(0, wanted - digits.size(), '0');
    std::transform(digits.begin(), digits.end(), digits.begin(),
                   [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    return digits;
}

double Percent(const ALDLValue& value, double r) {
    const double low = value.iRangeLow;
    return (r - low) / (value.iRangeHigh - low) * 100.0;
}

}  // namespace

std::string RawText(const ALDLValue& value, std::int64_t raw) {
    if (!IsKnownWidth(value.dwItemSizeBits)) raw = 0;
    const auto r = static_cast<double>(raw);
    switch (value.dwOperation) {
        case ALDLValue::kLinear:
            return TwoDecimals(r * value.dFactor + value.dOffset);
        case ALDLValue::kInverse:
            return TwoDecimals(raw != 0 ? value.dFactor / r + value.dOffset : value.dOffset);
        case ALDLValue::kHexadecimal:
            return HexDigits(static_cast<std::uint32_t>(raw), value.dwItemSizeBits);
        case ALDLValue::kWhole:
            return std::to_string(TruncateToInt32(r * value.dFactor + value.dOffset));
        case ALDLValue::kPercent:
            return TwoDecimals(Percent(value, r));
        case ALDLValue::kCharacter:
            return {raw != 0 ? static_cast<char>(raw & 0xFF) : '?'};
        case ALDLValue::kLookup:
            return TwoDecimals(value.table != nullptr ? value.table->slots.At(raw) : 0.0F);
        default:
            return {};
    }
}

float RawLimit(const ALDLValue& value, std::int64_t raw) {
    return PlainDecimalFloat(RawText(value, raw));
}

}  // namespace corvex
