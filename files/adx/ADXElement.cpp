#include "files/adx/ADXElement.h"

#include <algorithm>

namespace corvex {

template <std::size_t Size>
void ADXElement::FixedText<Size>::Set(const char16_t* text, std::uint32_t length) {
    const std::size_t limit = std::min<std::size_t>(length, Size - 1);
    // A character reference may give a NUL, which ends the text like any other text of the system.
    for (length_ = 0; length_ < limit && text[length_] != u'\0'; ++length_) {
        bytes_[length_] = NarrowCharacter(text[length_]);
    }
    bytes_[length_] = '\0';
}

void ADXElement::Clear() {
    name_.Clear();
    ClearText();
    count_ = 0;
}

void ADXElement::SetName(const char16_t* name, std::uint32_t length) {
    name_.Set(name, length);
}

void ADXElement::SetText(const char16_t* text, std::uint32_t length) {
    text_.Set(text, length);
    textlength_ += length;
}

void ADXElement::SetAttributes(const SAXAttribute* attributes, std::uint32_t count) {
    count_ = std::min<std::size_t>(count, kAttributeLimit);
    attributecut_ = false;
    for (std::size_t i = 0; i < count_; ++i) {
        attributes_[i].name.Set(attributes[i].name, attributes[i].nameLength);
        attributes_[i].value.Set(attributes[i].value, attributes[i].valueLength);
        attributecut_ = attributecut_ || attributes[i].valueLength >= kAttributeValueSize;
    }
}

std::string_view ADXElement::Attribute(std::string_view name) const {
    for (std::size_t i = 0; i < count_; ++i) {
        if (SameName(attributes_[i].name.View(), name)) return attributes_[i].value.View();
    }
    return {};
}

std::vector<std::pair<std::string, std::string>> ADXElement::Attributes() const {
    std::vector<std::pair<std::string, std::string>> all;
    for (std::size_t i = 0; i < count_; ++i)
        all.emplace_back(attributes_[i].name.View(), attributes_[i].value.View());
    return all;
}

}  // namespace corvex
