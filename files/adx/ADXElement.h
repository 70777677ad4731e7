// One element of a definition file, as the readers see it: its name, the text inside it, its attributes and its place.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "files/adx/TextForms.h"
#include "files/xml/ISAXCallback.h"

namespace corvex {

// Everything is kept in fixed fields, narrowed to bytes and ended by a NUL; what does not fit is cut off. Names match
// without regard to case, and of attributes of one name the first counts.
class ADXElement {
public:
    static constexpr std::size_t kNameSize = 128;
    static constexpr std::size_t kTextSize = 1024;
    static constexpr std::size_t kAttributeNameSize = 100;
    static constexpr std::size_t kAttributeValueSize = 256;
    static constexpr std::size_t kAttributeLimit = 32;

    void SetName(const char16_t* name, std::uint32_t length);
    void SetText(const char16_t* text, std::uint32_t length);
    void SetAttributes(const SAXAttribute* attributes, std::uint32_t count);
    void SetLine(std::uint32_t line) { line_ = line; }
    void ClearName() { name_.Clear(); }
    void ClearText() {
        text_.Clear();
        textlength_ = 0;
    }
    void Clear();

    bool IsEmpty() const { return name_.View().empty(); }
    bool Is(std::string_view name) const { return SameName(name_.View(), name); }
    bool BeginsWith(std::string_view prefix) const { return SameName(name_.View().substr(0, prefix.size()), prefix); }

    std::string_view Name() const { return name_.View(); }
    // Of the end of the start tag, from 1.
    std::uint32_t Line() const { return line_; }

    // The text inside, ended by a NUL, and what number it is.
    std::string_view Text() const { return text_.View(); }
    std::uint32_t Hex() const { return HexText(Text()); }
    std::uint32_t Dec() const { return DecimalWord(Text()); }
    float Float() const { return DecimalFloat(Text()); }

    // The attribute's value, ended by a NUL; null data when there is none of the name.
    std::string_view Attribute(std::string_view name) const;

    // All of them, names and values, for those who keep what they are told.
    std::vector<std::pair<std::string, std::string>> Attributes() const;
    // Whether all pieces of the text together, or an attribute's value, were more than is kept here.
    bool IsTextCut() const { return textlength_ >= kTextSize; }
    bool IsAttributeCut() const { return attributecut_; }

    // Read an attribute into a field; without the attribute the field keeps what it has. Narrow fields take the low
    // bits of the word.
    template <class Word>
    void ReadHex(std::string_view name, Word& out) const {
        const std::string_view value = Attribute(name);
        if (value.data() != nullptr) out = static_cast<Word>(HexText(value));
    }
    template <class Word>
    void ReadDec(std::string_view name, Word& out) const {
        const std::string_view value = Attribute(name);
        if (value.data() != nullptr) out = static_cast<Word>(DecimalWord(value));
    }
    void ReadFloat(std::string_view name, float& out) const {
        const std::string_view value = Attribute(name);
        if (value.data() != nullptr) out = DecimalFloat(value);
    }

private:
    template <std::size_t Size>
    class FixedText {
    public:
        FixedText() { Clear(); }
        void Clear() { bytes_[length_ = 0] = '\0'; }
        void Set(const char16_t* text, std::uint32_t length);
        std::string_view View() const { return {bytes_.data(), length_}; }

    private:
        std::array<char, Size> bytes_;
        std::size_t length_ = 0;
    };
    struct Pair {
        FixedText<kAttributeNameSize> name;
        FixedText<kAttributeValueSize> value;
    };

    FixedText<kNameSize> name_;
    FixedText<kTextSize> text_;
    std::array<Pair, kAttributeLimit> attributes_;
    std::size_t count_ = 0;
    std::size_t textlength_ = 0;
    std::uint32_t line_ = 0;
    bool attributecut_ = false;
};

}  // namespace corvex
