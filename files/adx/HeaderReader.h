// Reads the children of the ADXHEADER.
#pragma once

#include <cstdint>

#include "definition/ADXDefinition.h"
#include "files/adx/ADXElement.h"

namespace corvex {

// What the header says that has no place in the definition itself.
struct HeaderWords {
    // A command's id is held to 14 characters, which is what FindById compares.
    struct CommandId {
        char text[15] = {};
    };

    std::uint32_t objectcount = 0;
    std::uint32_t commandcount = 0;  // read from files that have it; no file is written with it
    CommandId connectcmd, monitorcmd, disconnectcmd;
};

// False for a name that it does not know and ignores.
bool ReadHeaderChild(ADXDefinition& definition, HeaderWords& header, const ADXElement& child);

}  // namespace corvex
