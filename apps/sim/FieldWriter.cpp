#include "apps/sim/FieldWriter.h"

namespace corvex {

void WriteField(std::uint8_t* field, std::uint32_t word, std::uint32_t sizeinbits, bool lowByteFirst) {
    const std::uint32_t count = FieldBytes(sizeinbits);
    const bool swapped = !lowByteFirst && (count == 2 || count == 4);
    for (std::uint32_t i = 0; i < count && i < 4; ++i) {
        field[swapped ? count - 1 - i : i] = static_cast<std::uint8_t>(word >> (8 * i));
    }
}

}  // namespace corvex
