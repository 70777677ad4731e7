#include "definition/OwnedText.h"

#include <algorithm>
#include <cstring>

namespace corvex {

std::size_t TextLength(const char* text, std::size_t limit) {
    if (text == nullptr || limit == 0) return 0;
    // Not memchr over the whole limit: callers give limits far past the end of a short text.
    std::size_t length = 0;
    while (length < limit && text[length] != '\0') {
        ++length;
    }
    return length;
}

void OwnedText::Set(const char* text, std::size_t len) {
    if (text == nullptr) {
        text_.reset();
        return;
    }
    // Built apart first: the text may be part of the one it replaces.
    text_ = std::string(text, TextLength(text, len));
}

void OwnedText::SetUnlessEmpty(const char* text, std::size_t len) {
    Set(text, len);
    if (text_ && text_->empty()) text_.reset();
}

std::size_t OwnedText::CopyTo(char* out, std::size_t size) const {
    if (out == nullptr || size == 0) return 0;
    const std::size_t length = std::min(Length(), size - 1);
    if (length != 0) std::memcpy(out, text_->data(), length);
    out[length] = '\0';
    return length;
}

std::size_t OwnedText::CopyWithTerminator(char* out, std::size_t size) const {
    return CopyTo(out, size) + 1;
}

}  // namespace corvex
