// Opens a log for the commands of the tool, which never write to one.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

#include "logging/DataLogEngine.h"

namespace corvex {

// False after one line on `err` that says why, with the system's reason where it has one.
bool OpenLog(DataLogEngine& log, const std::string& path, std::ostream& err);

// What a code of the log engine means: "it is no log of version 3".
std::string LogErrorText(std::uint32_t code);

// True when both names lead to one file, through links of any kind too.
bool SameFile(const std::string& path, const std::string& other);

}  // namespace corvex
