// A text that a page hands over with the room that it may take.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace corvex {

// Up to its 0, and never more bytes than that many. Null is empty.
inline std::string_view BoundedText(const char* text, std::size_t length) {
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(std::find(text, text + length, '\0') - text)};
}

// As much of a text as the buffer has room for, which ends with a 0; into null nothing. The text's whole length.
inline std::uint32_t CopyText(std::string_view text, char* buffer, std::size_t capacity) {
    if (buffer != nullptr && capacity > 0) buffer[text.copy(buffer, capacity - 1)] = '\0';
    return static_cast<std::uint32_t>(text.size());
}

}  // namespace corvex
