#include "controls/gauge/GaugeTextModel.h"

namespace corvex {

void GaugeText::Set(const char* text, std::size_t length) {
    text_.reset();
    if (text == nullptr || length == 0) return;
    std::size_t size = 0;
    while (size <= length && text[size] != '\0')
        ++size;
    text_.emplace(text, size <= length ? size : 0);
}

void GaugeText::CopyTo(char* buffer, std::size_t capacity) const {
    if (buffer == nullptr || capacity == 0) return;
    const std::size_t size = View().copy(buffer, capacity - 1);
    buffer[size] = '\0';
}

}  // namespace corvex
