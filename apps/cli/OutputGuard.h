// Keeps what a command writes from taking the place of what nobody meant to give up.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace corvex {

// False after one line on `err`: without `force`, an output is neither a file that the command reads nor a log that
// holds a recording. "-" is standard output and replaces nothing.
bool MayReplace(const std::string& output, const std::vector<std::string>& inputs, bool force, std::ostream& err);

}  // namespace corvex
