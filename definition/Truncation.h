// Numbers cut to whole words, with one result for every number on every target.
#pragma once

#include <cstdint>

namespace corvex {

// Toward zero to 32 bits signed. What does not fit, and what is no number, becomes -2147483648.
inline std::int32_t TruncateToInt32(double value) {
    // Written so that a NaN fails the test.
    if (value > -2147483649.0 && value < 2147483648.0) return static_cast<std::int32_t>(value);
    return INT32_MIN;
}

// Toward zero to a whole number, and its low 32 bits: -1 is 0xFFFFFFFF, 4294967296 is 0. What does not fit 64 bits
// signed, and what is no number, becomes 0.
inline std::uint32_t TruncateToWord(double value) {
    if (value >= -9223372036854775808.0 && value < 9223372036854775808.0) {
        return static_cast<std::uint32_t>(static_cast<std::uint64_t>(static_cast<std::int64_t>(value)));
    }
    return 0;
}

}  // namespace corvex
