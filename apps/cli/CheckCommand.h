// corvex-cli check: what the author of a definition must know.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

// kExitSuccess when the file loads, whatever is found in it; with `strict`, kExitFailure for errors and warnings.
ExitCode RunCheck(const CheckOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
