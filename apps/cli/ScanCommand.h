// corvex-cli scan: runs the scan of a definition and shows its values as they come.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

// Main thread. kExitFailure when the line never answered, or was lost.
ExitCode RunScan(const ScanOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
