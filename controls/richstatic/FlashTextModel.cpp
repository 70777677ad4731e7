#include "controls/richstatic/FlashTextModel.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace corvex {

namespace {

constexpr std::size_t kPartOfOverlong = 3;

}  // namespace

std::size_t FlashTextModel::CopyText(char* buffer, std::size_t capacity) const {
    if (capacity == 0) return 0;
    const std::size_t length = std::min(Length(), capacity - 1);
    std::memcpy(buffer, Text(), length);
    buffer[length] = '\0';
    return length;
}

// Odd and wanted: a text that does not fit changes the first three bytes and leaves the rest, whatever came before it.
// For the same reason a text that fits writes no byte behind its own end.
void FlashTextModel::Store(std::string_view text) {
    if (text.size() > kMaximumLength) {
        std::memcpy(text_.data(), text.data(), kPartOfOverlong);
        return;
    }
    std::copy(text.begin(), text.end(), text_.begin());
    text_[text.size()] = '\0';
}

void FlashTextModel::SetText(std::string_view text) {
    if (flashing_) {
        savedText_ = text;
    } else {
        Store(text);
    }
}

std::uint32_t FlashTextModel::SetTextColour(std::uint32_t colour) {
    return std::exchange((flashing_ ? savedColours_ : colours_).text, colour);
}

std::uint32_t FlashTextModel::SetBackColour(std::uint32_t colour) {
    return std::exchange((flashing_ ? savedColours_ : colours_).back, colour);
}

bool FlashTextModel::BeginFlash(std::string_view text, std::uint32_t textColour, std::uint32_t backColour) {
    if (flashing_) return false;
    savedText_ = Text();
    savedColours_ = colours_;
    Store(text);
    colours_ = {textColour, backColour};
    flashing_ = true;
    return true;
}

bool FlashTextModel::EndFlash() {
    if (!flashing_) return false;
    flashing_ = false;
    Store(savedText_);
    colours_ = savedColours_;
    return true;
}

}  // namespace corvex
