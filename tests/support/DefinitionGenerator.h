// Makes definitions at random, for tests that must hold for any of them.
#pragma once

#include <cstdint>

#include "definition/ADXDefinition.h"

namespace corvex {

// Fills an empty definition with objects of every type, linked to one another. The same seed gives the same definition
// on every target. Everything in it survives a save and a load: numbers have at most six decimals, texts that are not
// escaped hold nothing that would have to be, and nothing is longer than a file can hold.
void GenerateDefinition(std::uint32_t seed, ADXDefinition& definition);

}  // namespace corvex
