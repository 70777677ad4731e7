// Writes a definition as a file holds it.
#pragma once

#include "definition/ADXDefinition.h"
#include "files/xml/XMLWriter.h"
#include "platform/Clock.h"

namespace corvex {

// Writes root, the time in a comment, header and all objects to an open writer and leaves it open. Texts of the header
// and the ids of its three commands stand there whole and unescaped, as the format has them. `progress` may be null.
void WriteDefinition(const ADXDefinition& definition, XMLWriter& writer, const LocalTime& time,
                     IProgress* progress = nullptr);

}  // namespace corvex
