// corvex-cli list: what a definition holds.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

ExitCode RunList(const ListOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
