// Loads a definition for a command of the tool.
#pragma once

#include <iosfwd>
#include <string>

#include "checking/FileFacts.h"
#include "definition/ADXDefinition.h"

namespace corvex {

// False after one line on `err`: the reader's own text behind the file's name and, where the reader had one, the line
// (from 1) and column.
bool LoadDefinition(ADXDefinition& definition, const std::string& path, std::ostream& err);

// What LoadDefinition says, without the program's name. `error` is the loader's text, which may be empty.
std::string LoadFailure(const std::string& path, const std::string& error, const FileFacts& facts);

}  // namespace corvex
