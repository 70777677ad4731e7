// What a definition file holds that no definition keeps.
#pragma once

#include <string>

namespace corvex {

class ADXDefinition;
class SourceRecord;

// "2 comments and 3 elements that mean nothing: <foo>, <bar>"; empty when all of the file is in the definition. The
// comment that each save writes anew counts for none. `source` was told of the loading.
std::string DroppedText(const std::string& path, const ADXDefinition& definition, const SourceRecord& source);

}  // namespace corvex
