// What the tool calls the objects of a definition.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "definition/ADXObject.h"

namespace corvex {

struct NamedKind {
    std::uint32_t type;   // one bit of ADXType
    const char* noun;     // "value", "list view"
    const char* key;      // in JSON, plural: "values", "listviews"
    const char* element;  // of the file: "ADXVALUE"
    bool command;         // may stand in a macro and in the header
    bool packets;         // its replies carry values
    bool keepsBaseFlags;  // the reader of files takes "baseflags" of it
};

// All kinds, in the order that the tool shows them in.
std::span<const NamedKind> NamedKinds();

// Null for a type that is none of them, or an element name in any case that is none.
const NamedKind* KindOfType(std::uint32_t type);
const NamedKind* KindOfElement(std::string_view element);

// 'value "Engine Speed" (RPM)', as far as there are a title and an id.
std::string NameOf(const ADXObject& object);

// Title, else id, else hash: never empty.
std::string ShortNameOf(const ADXObject& object);

}  // namespace corvex
