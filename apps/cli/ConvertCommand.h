// corvex-cli convert: loads a definition, also a legacy one (.ads), and saves it in the present form.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

// The new file takes the place of `output` only when it is whole, so `output` may be the input itself.
ExitCode RunConvert(const ConvertOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
