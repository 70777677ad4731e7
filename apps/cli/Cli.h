// The command-line tool.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "apps/cli/ExitCode.h"

namespace corvex {

// Runs one command of the tool. `args` is without the program's name. Main thread.
ExitCode RunCli(std::vector<std::string> args, std::ostream& out, std::ostream& err);

}  // namespace corvex
