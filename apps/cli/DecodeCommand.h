// corvex-cli decode: the values of a log as CSV.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

ExitCode RunDecode(const DecodeOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
