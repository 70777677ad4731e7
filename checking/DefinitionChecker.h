// Judges a definition for its author.
#pragma once

#include <vector>

#include "checking/Finding.h"
#include "checking/SourceRecord.h"
#include "definition/ADXDefinition.h"

namespace corvex {

// Pure: reads the definition and, when it came from a file, what stood there (null for a definition made in memory).
// Findings come in the order of the definition, errors, warnings and notes mixed; what concerns the whole comes first.
std::vector<Finding> CheckDefinition(const ADXDefinition& definition, const SourceRecord* source);

}  // namespace corvex
