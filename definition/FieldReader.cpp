#include "definition/FieldReader.h"

#include <algorithm>

namespace corvex {

std::uint32_t ReadField(const std::uint8_t* field, std::uint32_t sizeinbits, bool lowByteFirst) {
    const std::uint32_t count = sizeinbits / 8;
    const bool swapped = !lowByteFirst && (count == 2 || count == 4 || count == 8);
    const std::uint32_t taken = std::min(count, 4U);
    std::uint32_t word = 0;
    for (std::uint32_t i = 0; i < taken; ++i) {
        const std::uint32_t byte = field[swapped ? count - 1 - i : i];
        word |= byte << (8 * i);
    }
    return word;
}

}  // namespace corvex
