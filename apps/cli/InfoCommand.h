// corvex-cli info: what a log holds, without a word written to it.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

ExitCode RunInfo(const InfoOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
