// corvex-cli hash: the hashes of id texts.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"

namespace corvex {

// An id holds 15 characters; a longer text is hashed as the id that it would become, which is told on `err`.
ExitCode RunHash(const HashOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
