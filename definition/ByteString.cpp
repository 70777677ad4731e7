#include "definition/ByteString.h"

#include <cstdio>

namespace corvex {

void ByteString::Set(const std::uint8_t* bytes, std::uint32_t len) {
    std::vector<std::uint8_t> copy;
    if (bytes != nullptr && len != 0) copy.assign(bytes, bytes + len);
    bytes_ = std::move(copy);
}

void ByteString::FormatTo(char* out, std::size_t size) const {
    constexpr std::size_t kLengthOfOne = 5;  // "0x00 "
    if (out == nullptr || size == 0) return;
    *out = '\0';
    // Whole bytes only: half of one would read back as another byte.
    for (const std::uint8_t byte : bytes_) {
        if (size <= kLengthOfOne) return;
        std::snprintf(out, size, "0x%.2X ", static_cast<unsigned>(byte));
        out += kLengthOfOne;
        size -= kLengthOfOne;
    }
}

}  // namespace corvex
