// Loads a definition for a command of the tool.
#pragma once

#include <iosfwd>
#include <string>

#include "definition/ADXDefinition.h"
#include "files/adx/IReadObserver.h"

namespace corvex {

// False after one line on `err`: the reader's own text behind the file's name and, where the reader had one, the line
// (from 1) and column. What was loaded is for reading: its hashes are indexed. `observer` is told what is read; it may
// be null.
bool LoadDefinition(ADXDefinition& definition, const std::string& path, std::ostream& err,
                    IReadObserver* observer = nullptr);

// False after one line on `err` when there are patterns and no value or bitmask of the definition, which came from
// `path`, matches one.
bool CheckItems(const ADXDefinition& definition, const std::string& patterns, const std::string& path,
                std::ostream& err);

}  // namespace corvex
