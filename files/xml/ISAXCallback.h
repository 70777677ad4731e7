#pragma once

#include <cstdint>

namespace corvex {

// One attribute of a start tag. Neither text is terminated; both live in the parser and are good for the call only.
struct SAXAttribute {
    const char16_t* name = nullptr;
    std::uint32_t nameLength = 0;
    const char16_t* value = nullptr;
    std::uint32_t valueLength = 0;
};

// Receives the events of one SAXParser, on the thread that parses.
//
// Each operation returns a status: a negative one stops the parse with SAXParser::kRefused, except that what Error
// returns is not looked at, for the parse is over by then. Texts are 16-bit characters with a length in characters,
// not terminated, owned by the parser and valid for the call only.
class ISAXCallback {
public:
    // Before the first byte is read.
    virtual std::int32_t StartDocument() = 0;
    // At the end of an input without fault.
    virtual std::int32_t EndDocument() = 0;
    // After a start tag is read whole; count is at most 32. An empty-element tag is followed by EndElement.
    virtual std::int32_t StartElement(const char16_t* name, std::uint32_t length, const SAXAttribute* attributes,
                                      std::uint32_t count) = 0;
    // A piece of element text, of at most 2048 characters. more is 1 when the buffer filled, else 0. Each piece that is
    // all blank is left out, so that a piece with more set is not sure to have a successor.
    virtual std::int32_t Characters(const char16_t* text, std::uint32_t length, std::int32_t more) = 0;
    // At an end tag, whose name need not match any start tag.
    virtual std::int32_t EndElement(const char16_t* name, std::uint32_t length) = 0;
    virtual std::int32_t StartCDATA() = 0;
    // As Characters, but blanks count; the last piece has more 0 and may be empty.
    virtual std::int32_t CDATA(const char16_t* text, std::uint32_t length, std::int32_t more) = 0;
    virtual std::int32_t EndCDATA() = 0;
    // The one fault that ends the parse: a code of SAXParser and a terminated text of at most 159 characters.
    virtual std::int32_t Error(std::int32_t code, const char* message) = 0;

    // Kept by the parser so that a fault can be placed. filename is never null, and "" outside ParseFile. line counts
    // from 1, column from 0: it is the number of characters read since the last LF, CR not counted.
    const char* filename = "";
    std::uint32_t line = 1;
    std::uint32_t column = 0;

protected:
    // Nobody owns a receiver through this interface, and a virtual destructor would take a slot.
    ~ISAXCallback() = default;
    ISAXCallback() = default;
    ISAXCallback(const ISAXCallback&) = default;
    ISAXCallback& operator=(const ISAXCallback&) = default;
};

}  // namespace corvex
