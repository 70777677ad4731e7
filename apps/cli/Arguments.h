// Reads the command line.
#pragma once

#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

// The options of the one command given, or the code to end with: kExitSuccess after --help and --version, whose text
// has gone to `out`, and kExitUsage with a line on `err`. `args` is without the program's name.
std::variant<Options, ExitCode> ParseArguments(std::vector<std::string> args, std::ostream& out, std::ostream& err);

}  // namespace corvex
