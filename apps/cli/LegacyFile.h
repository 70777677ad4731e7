// Loads a legacy text definition for a command of the tool.
#pragma once

#include <iosfwd>
#include <string>

#include "definition/ADXDefinition.h"
#include "files/ads/AdsReader.h"

namespace corvex {

// By its extension, ".ads" in letters of either case.
bool IsLegacyFile(const std::string& path);

// False after one line on `err`, for a file that holds nothing too. What the import leaves out or changes is one line
// on `err` too.
bool ImportDefinition(ADXDefinition& definition, const std::string& path, std::ostream& err);

// That line without the names of the program and the file; empty when everything came along.
std::string ImportNotes(const AdsReader& reader);

}  // namespace corvex
