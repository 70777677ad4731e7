// The forms in which a saved definition holds its words and texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace corvex {

class XMLWriter;

// At most `limit` characters of the text, escaped; empty for a null text.
std::string EscapedText(const char* text, std::size_t limit = static_cast<std::size_t>(-1));

// Elements that hold nothing but one word: "0x%.8X", "0x%.2X" and unsigned decimal.
void WriteElementHex8(XMLWriter& writer, const char* name, std::uint32_t word);
void WriteElementHex2(XMLWriter& writer, const char* name, std::uint32_t word);
void WriteElementDec(XMLWriter& writer, const char* name, std::uint32_t word);
// The same as attributes of the open start tag.
void WriteAttributeHex8(XMLWriter& writer, const char* name, std::uint32_t word);
void WriteAttributeDec(XMLWriter& writer, const char* name, std::uint32_t word);

// As the above, but nothing for a zero: a reader takes what is missing as zero.
void WriteElementHex8UnlessZero(XMLWriter& writer, const char* name, std::uint32_t word);
void WriteAttributeHex8UnlessZero(XMLWriter& writer, const char* name, std::uint32_t word);

// The text as it stands, unescaped, unless it is empty.
void WriteElementTextUnlessEmpty(XMLWriter& writer, const char* name, const char* text);

}  // namespace corvex
