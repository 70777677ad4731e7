// corvex-cli repair: copies every whole record of a log into a finished one.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

ExitCode RunRepair(const RepairOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
