// corvex-cli eval: one equation, evaluated as a value does it.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

// The result with "%.17g"; what makes it doubtful is told on `err`. An equation that does not parse: kExitFailure.
ExitCode RunEval(const EvalOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
