// A definition as text for a person: one table for each kind of object.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "definition/ADXDefinition.h"

namespace corvex {

std::size_t CountOfType(const ADXDefinition& definition, std::uint32_t type);

// A few lines that name the definition, its author, its line speed and its three commands.
std::string HeaderText(const ADXDefinition& definition);

// Everything in it. Lines end in LF and are as wide as they need to be.
std::string DefinitionText(const ADXDefinition& definition);

// The bytes in hexadecimal, with blanks between.
std::string BytesText(const std::uint8_t* bytes, std::uint32_t count);

}  // namespace corvex
