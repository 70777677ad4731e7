#include "definition/WriterForms.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <vector>

#include "files/xml/XMLWriter.h"

namespace corvex {
namespace {

constexpr const char* kHex8 = "0x%.8" PRIX32;
constexpr const char* kHex2 = "0x%.2" PRIX32;
constexpr const char* kDec = "%" PRIu32;

class WordText {
public:
    // The longest word has ten characters in any of the forms.
    WordText(const char* format, std::uint32_t word) { std::snprintf(text_, sizeof text_, format, word); }
    const char* CStr() const { return text_; }

private:
    char text_[16];
};

}  // namespace

std::string EscapedText(const char* text, std::size_t limit) {
    if (text == nullptr) return {};
    const std::size_t length = std::min(std::strlen(text), limit);
    if (length == 0) return {};
    // Six characters for one at most; the last of them may pass the limit given by five.
    constexpr std::size_t kSlack = 6;
    std::vector<char> buffer(length * 6 + 1 + 2 * kSlack);
    XMLWriter::Escape(text, length, buffer.data(), buffer.size() - kSlack);
    return buffer.data();
}

void WriteElementHex8(XMLWriter& writer, const char* name, std::uint32_t word) {
    writer.WriteElementText(name, WordText(kHex8, word).CStr());
}

void WriteElementHex2(XMLWriter& writer, const char* name, std::uint32_t word) {
    writer.WriteElementText(name, WordText(kHex2, word).CStr());
}

void WriteElementDec(XMLWriter& writer, const char* name, std::uint32_t word) {
    writer.WriteElementText(name, WordText(kDec, word).CStr());
}

void WriteAttributeHex8(XMLWriter& writer, const char* name, std::uint32_t word) {
    writer.WriteAttribute(name, WordText(kHex8, word).CStr());
}

void WriteAttributeDec(XMLWriter& writer, const char* name, std::uint32_t word) {
    writer.WriteAttribute(name, WordText(kDec, word).CStr());
}

void WriteElementHex8UnlessZero(XMLWriter& writer, const char* name, std::uint32_t word) {
    if (word != 0) WriteElementHex8(writer, name, word);
}

void WriteAttributeHex8UnlessZero(XMLWriter& writer, const char* name, std::uint32_t word) {
    if (word != 0) WriteAttributeHex8(writer, name, word);
}

void WriteElementTextUnlessEmpty(XMLWriter& writer, const char* name, const char* text) {
    if (text != nullptr && *text != '\0') writer.WriteElementText(name, text);
}

}  // namespace corvex
