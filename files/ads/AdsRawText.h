// Turns the raw limits of a legacy value into engineering numbers, by way of text.
#pragma once

#include <cstdint>
#include <string>

#include "files/ads/ALDLItem.h"

namespace corvex {

// The text that the value's operation makes of a raw number. A field of a width other than 1, 8, 16, 24 or 32 bits
// counts as 0. Operation 6 without its table gives "0.00", and an operation that there is not gives an empty text.
std::string RawText(const ALDLValue& value, std::int64_t raw);

// The number that is read back from that text. Hexadecimal digits and characters are read as a decimal number like all
// others, so limits of operations 2 and 5 seldom are what their author meant; definitions come with that.
float RawLimit(const ALDLValue& value, std::int64_t raw);

}  // namespace corvex
