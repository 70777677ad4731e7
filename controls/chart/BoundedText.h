// A text that a page hands over with the room that it may take.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace corvex {

// Up to its 0, and never more bytes than that many. Null is empty.
inline std::string_view BoundedText(const char* text, std::size_t length) {
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(std::find(text, text + length, '\0') - text)};
}

}  // namespace corvex
