// corvex-cli play: plays a log and shows its values as a scan does.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

ExitCode RunPlay(const PlayOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
